#include "questions/types.h"

#include "base/text.h"
#include "questions/catalogue.h"
#include "questions/datetext.h"
#include "timeline/timeline.h"

#include <array>

namespace brindor {

namespace {

std::string name(std::int16_t item)
{
    return isperson != 0 ? personrec(item).name : eventrec(item).name;
}

std::string descriptions(const ItemRec& record)
{
    return record.desc1 + ' ' + record.desc2;
}

std::string faction(std::int16_t item)
{
    return entryname(factions, personrec(item).faction);
}

std::string occupation(std::int16_t item)
{
    return entryname(occupations, personrec(item).occupation);
}

std::string group(std::int16_t item)
{
    return entryname(groups, eventrec(item).group);
}

std::string date1(std::int16_t item)
{
    return numbertext(personrec(item).date1);
}

std::string dateshown(std::int16_t item)
{
    return datetext(item, "to");
}

std::string datecompared(std::int16_t item)
{
    return datetext(item, "-");
}

std::string personname(std::int16_t item)
{
    return personrec(item).name;
}

std::string eventname(std::int16_t item)
{
    return eventrec(item).name;
}

std::string factionoccupation(std::int16_t item)
{
    return faction(item) + ' ' + occupation(item);
}

std::string nationgroup(std::int16_t item)
{
    return nationtext(item) + "  " + group(item);
}

// What is shown and what is compared differ on purpose: the word between two dates, desc1 alone for "Who was?",
// the bare first date for factions and occupations with dates, the name left out of "What happened on?".
const std::array<QuestionKind, 14> kinds = {{
    {"Name", Family::either, QuizScreen::none, "", nullptr, nullptr, name},
    {"Dates for person", Family::people, QuizScreen::mchoice, "Which dates match ", personname, dateshown,
     datecompared},
    {"Who was?", Family::people, QuizScreen::mchoice, "Who was ", personname,
     [](std::int16_t item) { return descriptions(personrec(item)); },
     [](std::int16_t item) { return personrec(item).desc1; }},
    {"Faction, date", Family::people, QuizScreen::qmatch, "Match people with faction and date(s)", nullptr,
     [](std::int16_t item) { return faction(item) + ' ' + datetext(item, "-"); },
     [](std::int16_t item) { return faction(item) + ' ' + date1(item); }},
    {"Faction, occupation", Family::people, QuizScreen::qmatch, "Match people with faction and occupation", nullptr,
     factionoccupation, factionoccupation},
    {"Occupation, date", Family::people, QuizScreen::qmatch, "Match people with occupation and date(s)", nullptr,
     [](std::int16_t item) { return occupation(item) + ' ' + datetext(item, "-"); },
     [](std::int16_t item) { return occupation(item) + ' ' + date1(item); }},
    {"People by date", Family::people, QuizScreen::qsort, "", nullptr, nullptr, personname},
    {"Dates for event", Family::events, QuizScreen::mchoice, "Which date(s) match ", eventname, dateshown,
     datecompared},
    {"What happened on?", Family::events, QuizScreen::mchoice, "What happened in ", dateshown,
     [](std::int16_t item) { return eventname(item) + " -- " + descriptions(eventrec(item)); },
     [](std::int16_t item) { return descriptions(eventrec(item)); }},
    {"Nation, date", Family::events, QuizScreen::qmatch, "Match events with nation(s) and date(s)", nullptr,
     [](std::int16_t item) { return nationtext(item) + "  " + dateshown(item); },
     [](std::int16_t item) { return nationtext(item) + "  " + datecompared(item); }},
    {"Nation, group", Family::events, QuizScreen::qmatch, "Match events with nation(s) and group", nullptr, nationgroup,
     nationgroup},
    {"Group, date", Family::events, QuizScreen::qmatch, "Match events with group(s) and date(s)", nullptr,
     [](std::int16_t item) { return group(item) + "  " + dateshown(item); },
     [](std::int16_t item) { return group(item) + "  " + datecompared(item); }},
    {"Which nations were involved?", Family::events, QuizScreen::mchoice, "Which nation(s) involved with ", eventname,
     nationtext, nationtext},
    {"Events by date", Family::events, QuizScreen::qsort, "", nullptr, nullptr, eventname},
}};

} // namespace

const QuestionKind& kindof(std::int16_t type)
{
    static const QuestionKind none;
    const bool inside = type >= 0 && static_cast<std::size_t>(type) < kinds.size();
    return inside ? kinds[static_cast<std::size_t>(type)] : none;
}

} // namespace brindor
