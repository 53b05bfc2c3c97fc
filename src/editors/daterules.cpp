#include "editors/daterules.h"

#include "base/numbers.h"
#include "base/text.h"

namespace brindor {

namespace {

std::string withinrange(const std::string& text)
{
    const double value = textvalue(text);
    if (value < lowestdate) {
        return decimaltext(lowestdate);
    }
    return value > highestdate ? decimaltext(highestdate) : text;
}

std::string persondate1(const std::string& date1)
{
    return withinrange(decimaltext(textvalue(date1)));
}

std::string persondate2(const std::string& date1, const std::string& date2)
{
    const std::string text = decimaltext(textvalue(date2));
    return withinrange(textvalue(date1) > textvalue(text) ? date1 : text);
}

std::string eventdate1(const std::string& date1)
{
    return numbertext(clampvalue(roundtoint16(textvalue(date1)), lowestdate, highestdate));
}

std::string eventdate2(const std::string& date1, const std::string& date2)
{
    return numbertext(clampvalue(roundtoint16(textvalue(date2)), textvalue(date1), highestdate));
}

} // namespace

const DateRules persondates = {persondate1, persondate2};
const DateRules eventdates = {eventdate1, eventdate2};

} // namespace brindor
