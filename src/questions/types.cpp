#include "questions/types.h"

#include "base/text.h"
#include "questions/question.h"
#include "questions/datetext.h"
#include "timeline/families.h"

#include <iterator>

namespace brindor {

namespace {

template <class Family>
void name(std::string& text, std::int16_t item)
{
    text += Family::record(item).name;
}

template <class Family>
void desc1(std::string& text, std::int16_t item)
{
    text += Family::record(item).desc1;
}

template <class Family>
void desc2(std::string& text, std::int16_t item)
{
    text += Family::record(item).desc2;
}

template <class Family>
void date1(std::string& text, std::int16_t item)
{
    text += numbertext(Family::record(item).date1);
}

template <class Family>
void datesto(std::string& text, std::int16_t item)
{
    adddates(text, Family::record(item), "to");
}

template <class Family>
void datesdash(std::string& text, std::int16_t item)
{
    adddates(text, Family::record(item), "-");
}

void faction(std::string& text, std::int16_t item)
{
    text += entryname(factions, personrec(item).faction);
}

void occupation(std::string& text, std::int16_t item)
{
    text += entryname(occupations, personrec(item).occupation);
}

void group(std::string& text, std::int16_t item)
{
    text += entryname(groups, eventrec(item).group);
}

void nation(std::string& text, std::int16_t item)
{
    addnations(text, eventrec(item));
}

// What lies between two pieces.
void blank(std::string& text, std::int16_t)
{
    text += ' ';
}

void twoblanks(std::string& text, std::int16_t)
{
    text += "  ";
}

void dashes(std::string& text, std::int16_t)
{
    text += " -- ";
}

// The one text that rests on the draw in progress: a bare name has no family of its own.
void nameofeither(std::string& text, std::int16_t item)
{
    (isperson != 0 ? name<PersonFamily> : name<EventFamily>)(text, item);
}

using P = PersonFamily;
using E = EventFamily;
using enum ItemKind;
using enum QuizScreen;

// What is shown and what is compared differ on purpose: the word between two dates, desc1 alone for "Who was?",
// the bare first date for factions and occupations with dates, the name left out of "What happened on?".
constexpr QuestionKind kinds[] = {
    {"Name", any, none, "", {}, {}, {nameofeither}},

    {"Dates for person", person, mchoice, "Which dates match ", {name<P>}, {datesto<P>}, {datesdash<P>}, true},
    {"Who was?", person, mchoice, "Who was ", {name<P>}, {desc1<P>, blank, desc2<P>}, {desc1<P>}},
    {"Faction, date", person, qmatch, "Match people with faction and date(s)", {}, //
     {faction, blank, datesdash<P>}, {faction, blank, date1<P>}},
    {"Faction, occupation", person, qmatch, "Match people with faction and occupation", {}, //
     {faction, blank, occupation}, {faction, blank, occupation}},
    {"Occupation, date", person, qmatch, "Match people with occupation and date(s)", {}, //
     {occupation, blank, datesdash<P>}, {occupation, blank, date1<P>}},
    {"People by date", person, qsort, "", {}, {}, {name<P>}, true},

    {"Dates for event", event, mchoice, "Which date(s) match ", {name<E>}, {datesto<E>}, {datesdash<E>}, true},
    {"What happened on?", event, mchoice, "What happened in ", {datesto<E>}, //
     {name<E>, dashes, desc1<E>, blank, desc2<E>}, {desc1<E>, blank, desc2<E>}},
    {"Nation, date", event, qmatch, "Match events with nation(s) and date(s)", {}, //
     {nation, twoblanks, datesto<E>}, {nation, twoblanks, datesdash<E>}},
    {"Nation, group", event, qmatch, "Match events with nation(s) and group", {}, //
     {nation, twoblanks, group}, {nation, twoblanks, group}},
    {"Group, date", event, qmatch, "Match events with group(s) and date(s)", {}, //
     {group, twoblanks, datesto<E>}, {group, twoblanks, datesdash<E>}},
    {"Which nations were involved?", event, mchoice, "Which nation(s) involved with ", {name<E>}, {nation}, {nation}},
    {"Events by date", event, qsort, "", {}, {}, {name<E>}, true},
};
static_assert(std::size(kinds) == lasttype + 1, "one row a type");

} // namespace

const QuestionKind& kindof(std::int16_t type)
{
    static constexpr QuestionKind norow;
    const bool inside = type >= 0 && type <= lasttype;
    return inside ? kinds[type] : norow;
}

void addpieces(std::string& text, const TextPieces& pieces, std::int16_t item)
{
    for (const TextPiece piece : pieces) {
        if (piece == nullptr) {
            return;
        }
        piece(text, item);
    }
}

} // namespace brindor
