#include "questions/types.h"

#include "base/text.h"
#include "questions/datetext.h"
#include "questions/question.h"
#include "timeline/families.h"

#include <iterator>

namespace brindor {

namespace {

template <class Family>
std::string_view name(std::string&, std::int16_t item)
{
    return Family::record(item).name;
}

template <class Family>
std::string_view desc1(std::string&, std::int16_t item)
{
    return Family::record(item).desc1;
}

template <class Family>
std::string_view desc2(std::string&, std::int16_t item)
{
    return Family::record(item).desc2;
}

template <class Family>
std::string_view date1(std::string& scratch, std::int16_t item)
{
    addnumber(scratch, Family::record(item).date1);
    return scratch;
}

template <class Family>
std::string_view datesto(std::string& scratch, std::int16_t item)
{
    adddates(scratch, Family::record(item), "to");
    return scratch;
}

template <class Family>
std::string_view datesdash(std::string& scratch, std::int16_t item)
{
    adddates(scratch, Family::record(item), "-");
    return scratch;
}

std::string_view faction(std::string&, std::int16_t item)
{
    return entryname(factions, personrec(item).faction);
}

std::string_view occupation(std::string&, std::int16_t item)
{
    return entryname(occupations, personrec(item).occupation);
}

std::string_view group(std::string&, std::int16_t item)
{
    return entryname(groups, eventrec(item).group);
}

std::string_view nation(std::string& scratch, std::int16_t item)
{
    addnations(scratch, eventrec(item));
    return scratch;
}

// What lies between two pieces.
std::string_view blank(std::string&, std::int16_t)
{
    return " ";
}

std::string_view twoblanks(std::string&, std::int16_t)
{
    return "  ";
}

std::string_view dashes(std::string&, std::int16_t)
{
    return " -- ";
}

// The one text that rests on the draw in progress: a bare name has no family of its own.
std::string_view nameofeither(std::string& scratch, std::int16_t item)
{
    return (isperson != 0 ? name<PersonFamily> : name<EventFamily>)(scratch, item);
}

using P = PersonFamily;
using E = EventFamily;
using enum ItemKind;
using enum QuizScreen;

// What is shown and what is compared differ on purpose: the word between two dates, desc1 alone for "Who was?",
// the bare first date for factions and occupations with dates, the name left out of "What happened on?".
// clang-format off
constexpr QuestionKind kinds[] = {
    {"Name", any, none, "", {}, {}, {nameofeither}},

    {"Dates for person", person, mchoice, "Which dates match ", {name<P>}, {datesto<P>}, {datesdash<P>}, true},
    {"Who was?", person, mchoice, "Who was ", {name<P>}, {desc1<P>, blank, desc2<P>}, {desc1<P>}},
    {"Faction, date", person, qmatch, "Match people with faction and date(s)", {},
     {faction, blank, datesdash<P>}, {faction, blank, date1<P>}},
    {"Faction, occupation", person, qmatch, "Match people with faction and occupation", {},
     {faction, blank, occupation}, {faction, blank, occupation}},
    {"Occupation, date", person, qmatch, "Match people with occupation and date(s)", {},
     {occupation, blank, datesdash<P>}, {occupation, blank, date1<P>}},
    {"People by date", person, qsort, "", {}, {}, {name<P>}, true},

    {"Dates for event", event, mchoice, "Which date(s) match ", {name<E>}, {datesto<E>}, {datesdash<E>}, true},
    {"What happened on?", event, mchoice, "What happened in ", {datesto<E>},
     {name<E>, dashes, desc1<E>, blank, desc2<E>}, {desc1<E>, blank, desc2<E>}},
    {"Nation, date", event, qmatch, "Match events with nation(s) and date(s)", {},
     {nation, twoblanks, datesto<E>}, {nation, twoblanks, datesdash<E>}},
    {"Nation, group", event, qmatch, "Match events with nation(s) and group", {},
     {nation, twoblanks, group}, {nation, twoblanks, group}},
    {"Group, date", event, qmatch, "Match events with group(s) and date(s)", {},
     {group, twoblanks, datesto<E>}, {group, twoblanks, datesdash<E>}},
    {"Which nations were involved?", event, mchoice, "Which nation(s) involved with ", {name<E>}, {nation}, {nation}},
    {"Events by date", event, qsort, "", {}, {}, {name<E>}, true},
};
// clang-format on
static_assert(std::size(kinds) == lasttype + 1, "one row a type");

std::string scratch; // of the piece in hand; kept for its memory

// Hands the pieces of an item's text over, one by one, as long as `take` says true.
template <class Take>
bool foreachpiece(const TextPieces& pieces, std::int16_t item, const Take& take)
{
    for (const TextPiece piece : pieces.all) {
        if (piece == nullptr) {
            break;
        }
        scratch.clear();
        if (!take(piece(scratch, item))) {
            return false;
        }
    }
    return true;
}

} // namespace

const QuestionKind& kindof(std::int16_t type)
{
    static constexpr QuestionKind norow;
    const bool inside = type >= 0 && type <= lasttype;
    return inside ? kinds[type] : norow;
}

void addpieces(std::string& text, const TextPieces& pieces, std::int16_t item)
{
    foreachpiece(pieces, item, [&text](std::string_view piece) {
        text += piece;
        return true;
    });
}

bool piecesare(std::string_view text, const TextPieces& pieces, std::int16_t item)
{
    return foreachpiece(pieces, item,
                        [&text](std::string_view piece) {
                            const bool same = text.starts_with(piece);
                            text.remove_prefix(same ? piece.size() : 0);
                            return same;
                        }) &&
           text.empty();
}

} // namespace brindor
