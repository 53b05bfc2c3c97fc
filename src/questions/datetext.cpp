#include "questions/datetext.h"

#include "base/text.h"
#include "questions/catalogue.h"
#include "timeline/timeline.h"

namespace brindor {

namespace {

std::string onedate(std::int16_t kind, std::int16_t date)
{
    switch (kind) {
    case known:
        return numbertext(date);
    case approx:
        return "ca. " + numbertext(date);
    case reign:
        return "(reign) " + numbertext(date);
    default:
        return {};
    }
}

const Dates& datesof(std::int16_t item)
{
    if (isperson != 0) {
        return personrec(item);
    }
    return eventrec(item);
}

} // namespace

std::string datetext(std::int16_t item, std::string_view word)
{
    const Dates& d = datesof(item);
    std::string text = onedate(d.datetype1, d.date1);
    if (d.date2 != d.date1) {
        text += ' ';
        text += word;
        text += ' ';
        text += onedate(d.datetype2, d.date2);
    }
    return text;
}

std::string nationtext(std::int16_t item)
{
    const EventRec& event = eventrec(item);
    std::string text = entryname(nations, event.nation1);
    if (event.nation1 != event.nation2) {
        text += ", " + entryname(nations, event.nation2);
    }
    return text;
}

} // namespace brindor
