#include "authoring/fairness.h"

#include "authoring/commands.h"
#include "authoring/words.h"
#include "base/random.h"
#include "base/text.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "questions/types.h"
#include "timeline/timeline.h"
#include "timeline/usedmarks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <set>
#include <string_view>

namespace brindor::authoring {

namespace {

constexpr std::int64_t questionsofagame = 50; // then the marks are cleared, as a new choice of a period does
constexpr int nearyears = 10;
constexpr int longesttoreign = 40; // years from a birth within which a reign may be that of an older person

enum class Verdict { fair, arguable, clear };

// Whether two items of one question can be taken for each other. In a multiple choice `a` is the item asked about.
using Judge = Verdict (*)(std::int16_t a, std::int16_t b);

bool isapprox(const Dates& dates)
{
    return dates.datetype1 == approx || dates.datetype2 == approx;
}

bool near(std::int16_t a, std::int16_t b)
{
    return std::abs(a - b) <= nearyears;
}

bool samespan(const Dates& a, const Dates& b)
{
    return a.date1 == b.date1 && a.date2 == b.date2;
}

bool overlap(const Dates& a, const Dates& b)
{
    return a.date1 <= b.date2 && b.date1 <= a.date2;
}

Verdict clearif(bool met)
{
    return met ? Verdict::clear : Verdict::fair;
}

Verdict lives(std::int16_t a, std::int16_t b)
{
    const Dates& one = personrec(a);
    const Dates& other = personrec(b);
    if (!near(one.date1, other.date1) || !near(one.date2, other.date2) || !(isapprox(one) || isapprox(other))) {
        return Verdict::fair;
    }
    return isapprox(one) && isapprox(other) ? Verdict::clear : Verdict::arguable;
}

Verdict eventdates(std::int16_t a, std::int16_t b)
{
    const Dates& one = eventrec(a);
    const Dates& other = eventrec(b);
    if (!overlap(one, other)) {
        return Verdict::fair;
    }
    return samespan(one, other) || isapprox(one) || isapprox(other) ? Verdict::clear : Verdict::arguable;
}

Verdict happened(std::int16_t a, std::int16_t b)
{
    return clearif(overlap(eventrec(a), eventrec(b)));
}

Verdict descriptions(std::int16_t a, std::int16_t b)
{
    return clearif(folded(personrec(a).desc1) == folded(personrec(b).desc1));
}

Verdict livesordates(std::int16_t a, std::int16_t b)
{
    return samespan(personrec(a), personrec(b)) ? Verdict::clear : lives(a, b);
}

Verdict factionlives(std::int16_t a, std::int16_t b)
{
    return personrec(a).faction == personrec(b).faction ? livesordates(a, b) : Verdict::fair;
}

Verdict occupationlives(std::int16_t a, std::int16_t b)
{
    return personrec(a).occupation == personrec(b).occupation ? livesordates(a, b) : Verdict::fair;
}

Verdict never(std::int16_t, std::int16_t)
{
    return Verdict::fair;
}

std::set<std::int16_t> nationsof(std::int16_t event)
{
    return {eventrec(event).nation1, eventrec(event).nation2};
}

Verdict nationsets(std::int16_t a, std::int16_t b)
{
    const std::set<std::int16_t> one = nationsof(a);
    const std::set<std::int16_t> other = nationsof(b);
    if (one == other) {
        return Verdict::clear;
    }
    const bool part = std::includes(one.begin(), one.end(), other.begin(), other.end()) ||
                      std::includes(other.begin(), other.end(), one.begin(), one.end());
    return part ? Verdict::arguable : Verdict::fair;
}

Verdict nationdates(std::int16_t a, std::int16_t b)
{
    return nationsof(a) == nationsof(b) ? eventdates(a, b) : Verdict::fair;
}

Verdict nationgroups(std::int16_t a, std::int16_t b)
{
    return eventrec(a).group == eventrec(b).group ? nationsets(a, b) : Verdict::fair;
}

Verdict groupdates(std::int16_t a, std::int16_t b)
{
    return eventrec(a).group == eventrec(b).group ? eventdates(a, b) : Verdict::fair;
}

Verdict nearorder(const Dates& a, const Dates& b)
{
    const bool onea = a.datetype1 == approx;
    const bool oneb = b.datetype1 == approx;
    if (a.date1 == b.date1 || !near(a.date1, b.date1) || !(onea || oneb)) {
        return Verdict::fair;
    }
    return onea && oneb ? Verdict::clear : Verdict::arguable;
}

// A reign that begins some years after another's birth may well be that of the older person; but where no birth of the
// ruler is known, nobody can show it.
bool reignafterbirth(const Dates& ruler, const Dates& other)
{
    const int years = ruler.date1 - other.date1;
    return ruler.datetype1 == reign && other.datetype1 != reign && years >= 1 && years <= longesttoreign;
}

Verdict peopleorder(std::int16_t a, std::int16_t b)
{
    const Dates& one = personrec(a);
    const Dates& other = personrec(b);
    const bool mixed = reignafterbirth(one, other) || reignafterbirth(other, one);
    return std::max(mixed ? Verdict::arguable : Verdict::fair, nearorder(one, other));
}

Verdict eventorder(std::int16_t a, std::int16_t b)
{
    return nearorder(eventrec(a), eventrec(b));
}

struct Rule {
    Judge judge;
    std::string_view words; // behind the kind's name
};

constexpr std::string_view matchedlives =
    "two of the five share it, and their dates are equal or as in \"Dates for person\".";
constexpr std::string_view matchedevents = "two of the five share it; clear and arguable as in \"Dates for event\".";
constexpr std::string_view nationrule =
    "same nations, in whatever order: clear; all nations of one among the other's: arguable.";

// By number of kind, from 1.
constexpr std::array<Rule, lasttype> rules = {{
    {lives, "both ends of another choice lie within 10 years of the asked person's, and both have \"ca.\": clear, one "
            "has it: arguable; the asked person's is the only choice with \"(reign)\", which gives it away: arguable."},
    {descriptions, "another choice has the same first description: clear."},
    {factionlives, matchedlives},
    {never, "equal texts never come together, so every question is fair."},
    {occupationlives, matchedlives},
    {peopleorder, "first dates of two people 1 to 10 years apart, both \"ca.\": clear, one \"ca.\": arguable; a reign "
                  "that begins 1 to 40 years after another's birth: arguable."},
    {eventdates, "another choice's dates overlap the asked one's and are equal to them, or one of the two has \"ca.\": "
                 "clear; else arguable."},
    {happened, "another choice's dates are equal to the asked one's or overlap them: clear."},
    {nationdates, matchedevents},
    {nationgroups, "two of the five have one group; clear and arguable as in \"Which nations were involved?\"."},
    {groupdates, matchedevents},
    {nationsets, nationrule},
    {eventorder, "first dates of two events 1 to 10 years apart, both \"ca.\": clear, one \"ca.\": arguable."},
}};
static_assert(!rules.back().words.empty(), "one rule a kind");

bool hasreign(std::int16_t person)
{
    return personrec(person).datetype1 == reign || personrec(person).datetype2 == reign;
}

// Of a question that was drawn into `chosen`.
Verdict judged(std::int16_t type, std::size_t asked)
{
    const bool choice = kindof(type).screen == QuizScreen::mchoice;
    Verdict worst = Verdict::fair;
    for (std::size_t i = 0; i < itemsasked; ++i) {
        for (std::size_t j = i + 1; j < itemsasked; ++j) {
            if (!choice || i == asked || j == asked) {
                worst = std::max(worst, rules[static_cast<std::size_t>(type - 1)].judge(chosen[i], chosen[j]));
            }
        }
    }
    const auto reigns = std::count_if(chosen.begin(), chosen.begin() + itemsasked, hasreign);
    if (type == 1 && reigns == 1 && hasreign(chosen[asked])) {
        worst = std::max(worst, Verdict::arguable);
    }
    return worst;
}

// "0.42%"
std::string percent(std::int64_t part, std::int64_t whole)
{
    const std::int64_t hundredths = (part * 10000 + whole / 2) / whole;
    const std::string digits = numbertext(hundredths % 100);
    return numbertext(hundredths / 100) + (digits.size() == 1 ? ".0" : ".") + digits + '%';
}

struct Judged {
    std::string title;
    std::array<Fairness, lasttype> kinds;
};

} // namespace

Fairness fairnessof(std::int16_t type, std::int64_t questions, std::uint64_t seed)
{
    Fairness shares;
    if (!fillabletypes()[static_cast<std::size_t>(type)]) {
        return shares;
    }
    shares.asked = true;
    seedrandom(seed);
    qtype = type;
    for (std::int64_t question = 0; question < questions; ++question) {
        if (question % questionsofagame == 0) {
            clearmarks();
        }
        const auto asked = static_cast<std::size_t>(drawbelow(placesoftheright));
        for (std::int16_t slot = 0; slot < itemsasked; ++slot) {
            getitem(slot);
        }
        const Verdict verdict = judged(type, asked);
        shares.clear += verdict == Verdict::clear ? 1 : 0;
        shares.arguable += verdict == Verdict::arguable ? 1 : 0;
    }
    return shares;
}

std::string fairnessrules()
{
    std::string text = "Each question is drawn as the game draws it, and has two answers where\n";
    for (std::size_t i = 0; i < rules.size(); ++i) {
        text += "- " + std::string(kindof(static_cast<std::int16_t>(i + 1)).name) + ": " + std::string(rules[i].words) +
                '\n';
    }
    return text;
}

std::string fairnesstable(const std::vector<std::string>& targets, std::int64_t questions, std::uint64_t seed,
                          Findings& findings)
{
    std::vector<Judged> columns;
    for (const std::string& target : targets) {
        if (!loadtarget(target, findings)) {
            continue;
        }
        Judged column{titleof(target), {}};
        for (std::int16_t type = 1; type <= lasttype; ++type) {
            column.kinds[static_cast<std::size_t>(type - 1)] = fairnessof(type, questions, seed);
        }
        columns.push_back(column);
    }
    std::string text = "| Kind of question |";
    std::string line = "|---|";
    for (const Judged& column : columns) {
        text += ' ' + column.title + ": clear | arguable |";
        line += "---|---|";
    }
    text += '\n' + line + '\n';
    for (std::size_t i = 0; i < rules.size(); ++i) {
        text += "| " + std::string(kindof(static_cast<std::int16_t>(i + 1)).name) + " |";
        for (const Judged& column : columns) {
            const Fairness& shares = column.kinds[i];
            text += shares.asked
                        ? ' ' + percent(shares.clear, questions) + " | " + percent(shares.arguable, questions) + " |"
                        : std::string(" not asked | |");
        }
        text += '\n';
    }
    return text;
}

} // namespace brindor::authoring
