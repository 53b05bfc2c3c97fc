#include "questions/types.h"

#include "base/text.h"
#include "questions/datetext.h"
#include "questions/question.h"
#include "timeline/families.h"

#include <iterator>

namespace brindor {

namespace {

// What stands in a record as it is, and a name that a record has the index of.
template <class Family, std::string ItemRec::*field>
constexpr TextPiece stored = {
    [](std::string&, std::int16_t item) -> std::string_view { return Family::record(item).*field; },
    [](std::int16_t one, std::int16_t other) { return Family::record(one).*field == Family::record(other).*field; }};

template <class Family, const Catalogue& catalogue, std::int16_t Family::Record::*index>
constexpr TextPiece entry = {
    [](std::string&, std::int16_t item) -> std::string_view {
        return entryname(catalogue, Family::record(item).*index);
    },
    [](std::int16_t one, std::int16_t other) { return Family::record(one).*index == Family::record(other).*index; }};

template <class Family>
constexpr TextPiece name = stored<Family, &ItemRec::name>;
template <class Family>
constexpr TextPiece desc1 = stored<Family, &ItemRec::desc1>;
template <class Family>
constexpr TextPiece desc2 = stored<Family, &ItemRec::desc2>;
constexpr TextPiece faction = entry<PersonFamily, factions, &PersonRec::faction>;
constexpr TextPiece occupation = entry<PersonFamily, occupations, &PersonRec::occupation>;
constexpr TextPiece group = entry<EventFamily, groups, &EventRec::group>;

constexpr TextPiece nation = {[](std::string& scratch, std::int16_t item) -> std::string_view {
                                  addnations(scratch, eventrec(item));
                                  return scratch;
                              },
                              [](std::int16_t one, std::int16_t other) {
                                  const EventRec& a = eventrec(one);
                                  const EventRec& b = eventrec(other);
                                  return a.nation1 == b.nation1 && a.nation2 == b.nation2;
                              }};

template <class Family>
constexpr TextPiece date1 = {
    [](std::string& scratch, std::int16_t item) -> std::string_view {
        addnumber(scratch, Family::record(item).date1);
        return scratch;
    },
    [](std::int16_t one, std::int16_t other) { return Family::record(one).date1 == Family::record(other).date1; }};

template <class Family>
bool samedates(std::int16_t one, std::int16_t other)
{
    const Dates& a = Family::record(one);
    const Dates& b = Family::record(other);
    return a.date1 == b.date1 && a.date2 == b.date2 && a.datetype1 == b.datetype1 && a.datetype2 == b.datetype2;
}

template <class Family>
constexpr TextPiece datesto = {[](std::string& scratch, std::int16_t item) -> std::string_view {
                                   adddates(scratch, Family::record(item), "to");
                                   return scratch;
                               },
                               samedates<Family>};

template <class Family>
constexpr TextPiece datesdash = {[](std::string& scratch, std::int16_t item) -> std::string_view {
                                     adddates(scratch, Family::record(item), "-");
                                     return scratch;
                                 },
                                 samedates<Family>};

// What lies between two pieces.
constexpr TextPiece blank = {[](std::string&, std::int16_t) { return std::string_view(" "); }};
constexpr TextPiece twoblanks = {[](std::string&, std::int16_t) { return std::string_view("  "); }};
constexpr TextPiece dashes = {[](std::string&, std::int16_t) { return std::string_view(" -- "); }};

// The one text that rests on the draw in progress: a bare name has no family of its own.
constexpr TextPiece nameofeither = {
    [](std::string& scratch, std::int16_t item) {
        return (isperson != 0 ? name<PersonFamily> : name<EventFamily>).text(scratch, item);
    },
    [](std::int16_t one, std::int16_t other) { return one == other; }};

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

} // namespace

const QuestionKind& kindof(std::int16_t type)
{
    static constexpr QuestionKind norow;
    const bool inside = type >= 0 && type <= lasttype;
    return inside ? kinds[type] : norow;
}

void addpieces(std::string& text, const TextPieces& pieces, std::int16_t item)
{
    for (const TextPiece& piece : pieces.all) {
        if (piece.text == nullptr) {
            break;
        }
        scratch.clear();
        text += piece.text(scratch, item);
    }
}

bool samesources(const TextPieces& pieces, std::int16_t one, std::int16_t other)
{
    for (const TextPiece& piece : pieces.all) {
        if (piece.text == nullptr) {
            break;
        }
        if (piece.samesource != nullptr && !piece.samesource(one, other)) {
            return false;
        }
    }
    return true;
}

} // namespace brindor
