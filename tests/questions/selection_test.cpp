#include "questions/selection.h"

#include "base/random.h"
#include "questions/question.h"
#include "questions/texts.h"
#include "support/programtest.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <string>
#include <utility>

namespace brindor {

class Selection : public tests::ProgramTest {
protected:
    std::string draw(std::int16_t type)
    {
        qtype = type;
        for (std::int16_t slot = 0; slot < 5; ++slot) {
            EXPECT_EQ(getitem(slot), chosen[static_cast<std::size_t>(slot)]);
        }
        std::set<std::string> texts;
        for (std::size_t slot = 0; slot < 5; ++slot) {
            texts.insert(getpstr(chosen[slot], type));
        }
        return std::to_string(texts.size()) + (isperson != 0 ? " people" : " events");
    }
};

TEST_F(Selection, DrawsFiveDifferentItemsOfTheTypesFamily)
{
    tests::setnumbered(30, 40);
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        clearmarks();
        EXPECT_EQ(draw(type), type <= 6 ? "5 people" : "5 events");
        std::vector<std::int16_t> expected(usedmarks.size(), 0);
        for (std::size_t slot = 0; slot < 5; ++slot) {
            expected[usedslot(isperson, chosen[slot])] = slot == 0 ? 10 : 1;
        }
        EXPECT_EQ(usedmarks, expected) << type;
    }
}

// Five people: the second question climbs to level 2, and for its last slot to level 11.
TEST_F(Selection, ClimbsWhenTheFreshItemsAreUsedUpAndRefusesAMarkEqualToTheLevel)
{
    tests::setnumbered(5, 0);
    EXPECT_EQ(draw(6), "5 people");
    std::vector<std::int16_t> marks(6, 1);
    const std::int16_t first = chosen[0];
    marks[static_cast<std::size_t>(first)] = 10;
    marks[5] = 0;
    EXPECT_EQ(usedmarks, marks);
    EXPECT_EQ(draw(6), "5 people");
    EXPECT_EQ(chosen[4], first);
    EXPECT_EQ(usedmarks[static_cast<std::size_t>(first)], 11);
    tests::setnumbered(200, 0);
    usedmarks.assign(201, 50);
    usedmarks[3] = 5;
    EXPECT_EQ(getitem(0), 3); // the only one below level 6
    usedmarks.assign(usedmarks.size(), 32767);
    EXPECT_GE(getitem(0), 0); // nor does a mark at its limit keep an item away for ever
    EXPECT_EQ(usedmarks, std::vector<std::int16_t>(201, 32767));
}

// Which items a type never draws: those whose comparison text is empty or a single blank.
TEST_F(Selection, BlankTextsAreNeverDrawn)
{
    std::string drawn;
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        tests::setnumbered(5, 5);
        people.insert(people.begin(), tests::person("", tests::year(1)));
        events.insert(events.begin(), tests::event(" ", tests::year(2)));
        npeople = nevents = 6;
        bool seen = false;
        for (int game = 0; game < 40; ++game) {
            clearmarks();
            draw(type);
            seen = seen || std::count(chosen.begin(), chosen.begin() + 5, 0) > 0;
        }
        drawn += seen ? std::to_string(type) + ' ' : "";
    }
    EXPECT_EQ(drawn, "1 3 5 7 9 10 11 ");
    people[5] = people[4];
    ++timelinestate;
    EXPECT_FALSE(fillabletypes()[2]);
    people[0].desc1 = "  "; // two blanks pass
    ++timelinestate;
    EXPECT_TRUE(fillabletypes()[2]);
}

TEST_F(Selection, EqualTextsAndTooFewItems)
{
    for (int equal = 0; equal < 3; ++equal) { // five different ones are left, and then four
        tests::setnumbered(6, 6);
        std::fill_n(people.begin(), equal, people[5]);
        std::fill_n(events.begin(), equal, events[5]);
        ++timelinestate;
        const ByType<bool> fillable = fillabletypes();
        EXPECT_EQ(std::count(fillable.begin(), fillable.end(), true), equal < 2 ? lasttype : 0);
        for (std::int16_t type = 1; equal < 2 && type <= lasttype; ++type) {
            EXPECT_EQ(draw(type).front(), '5') << type;
        }
    }
    people[1].desc2 = "other"; // only the first description line counts
    people[1].date2 = 2000;    // for some types only the first date does
    people[1].faction = 1;     // another index, the same name
    factions[1] = factions[6];
    ++timelinestate;
    ByType<bool> datesalone{};
    datesalone[1] = true;
    EXPECT_EQ(fillabletypes(), datesalone);
}

// What was found out of the items for one question is not believed of another.
TEST_F(Selection, ASlotThatIsAskedForAgainLooksAnew)
{
    tests::setnumbered(6, 0);
    qtype = 6;
    for (int round = 0; round < 20; ++round) {
        usedmarks.assign(usedmarks.size(), 100);
        usedmarks[0] = usedmarks[1] = 50; // the two that slots 0 and 1 take
        const std::int16_t first = getitem(0);
        usedmarks[static_cast<std::size_t>(first)] = 50;
        getitem(1);
        chosen[0] = 5;
        usedmarks.assign(usedmarks.size(), 100);
        usedmarks[static_cast<std::size_t>(first)] = 50;
        EXPECT_EQ(getitem(1), first);
    }
}

TEST_F(Selection, WhereNothingCanPassItEnds)
{
    tests::settimeline({}, {});
    qtype = 6;
    EXPECT_EQ(getitem(0), 0);
    tests::settimeline({tests::person("", tests::year(1)), tests::person("x", tests::year(2))}, {});
    EXPECT_EQ(getitem(0), 1);
    EXPECT_EQ(getitem(1), 0);
    EXPECT_EQ(usedmarks, (std::vector<std::int16_t>{0, 10, 0}));
    EXPECT_TRUE(host.messages.empty());
    qtype = 14;
    EXPECT_EQ(getitem(0), 0);
    EXPECT_EQ(host.messages.at(0).text, "No action for 14");
}

// Among the items that pass, each is equally likely: 0.1 % of fair draws exceed the limit, with 10 degrees of freedom.
TEST_F(Selection, IsUniform)
{
    constexpr double expected = 500;
    tests::setnumbered(0, 12);
    std::vector<double> counts(12);
    qtype = 13;
    for (int i = 0; i < 11 * expected; ++i) {
        clearmarks();
        usedmarks[3] = 1; // never while the others are fresh
        ++counts[static_cast<std::size_t>(getitem(0))];
    }
    EXPECT_EQ(drawbelow(0) + drawbelow(-5), 0);
    EXPECT_EQ(std::exchange(counts[3], expected), 0);
    double chisquare = 0;
    for (const double count : counts) {
        chisquare += (count - expected) * (count - expected) / expected;
    }
    EXPECT_LT(chisquare, 29.6);
}

// The levels that nothing seems to pass are passed with the odds of 1001 blind tries each: 0 means the one good item of
// mark 0, 1 the two of mark 1, 2 the others.
TEST_F(Selection, KeepsTheOddsOfTheBlindTries)
{
    constexpr int items = 3000;
    constexpr int draws = 4000;
    tests::setnumbered(items, 0);
    const auto hit = [](int open) { return 1 - std::pow(1 - open / double{items}, 1001); };
    const double first = hit(1);
    const double second = (1 - first) * hit(3);
    const double third = 1 - first - second;
    const double expected[] = {first + second / 3 + third / items, second * 2 / 3 + third * 2 / items,
                               third * (items - 3.0) / items};
    people[4].name = people[5].name = ""; // of mark 0, but never good
    double counts[3] = {};
    qtype = 6;
    for (int i = 0; i < draws; ++i) {
        usedmarks.assign(usedmarks.size(), 2);
        usedmarks[4] = usedmarks[5] = usedmarks[100] = 0;
        usedmarks[7] = usedmarks[2000] = 1;
        const std::int16_t item = getitem(0);
        ++counts[item == 100 ? 0 : item == 7 || item == 2000 ? 1 : 2];
    }
    double chisquare = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const double number = draws * expected[i];
        chisquare += (counts[i] - number) * (counts[i] - number) / number;
    }
    EXPECT_LT(chisquare, 13.8); // 0.1 % of fair generators exceed this with 2 degrees of freedom
}

} // namespace brindor
