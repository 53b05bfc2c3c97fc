#include "questions/datetext.h"

#include "base/text.h"
#include "questions/question.h"

namespace brindor {

namespace {

void adddate(std::string& text, std::int16_t kind, std::int16_t date)
{
    switch (kind) {
    case known:
        break;
    case approx:
        text += "ca. ";
        break;
    case reign:
        text += "(reign) ";
        break;
    default:
        return;
    }
    addnumber(text, date);
}

} // namespace

void adddates(std::string& text, const Dates& dates, std::string_view word)
{
    adddate(text, dates.datetype1, dates.date1);
    if (dates.date2 != dates.date1) {
        text += ' ';
        text += word;
        text += ' ';
        adddate(text, dates.datetype2, dates.date2);
    }
}

void addnations(std::string& text, const EventRec& event)
{
    text += entryname(nations, event.nation1);
    if (event.nation1 != event.nation2) {
        text += ", ";
        text += entryname(nations, event.nation2);
    }
}

std::string datetext(const Dates& dates, std::string_view word)
{
    std::string text;
    adddates(text, dates, word);
    return text;
}

std::string datetext(std::int16_t item, std::string_view word)
{
    return isperson != 0 ? datetext(personrec(item), word) : datetext(eventrec(item), word);
}

std::string nationtext(std::int16_t item)
{
    std::string text;
    addnations(text, eventrec(item));
    return text;
}

} // namespace brindor
