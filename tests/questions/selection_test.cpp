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

    static std::vector<std::int16_t> sortedmarks()
    {
        std::vector<std::int16_t> marks = usedmarks;
        std::sort(marks.begin(), marks.end());
        return marks;
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
TEST_F(Selection, ClimbsWhenTheFreshItemsAreUsedUp)
{
    tests::setnumbered(5, 0);
    EXPECT_EQ(draw(6), "5 people");
    EXPECT_EQ(sortedmarks(), (std::vector<std::int16_t>{0, 1, 1, 1, 1, 10}));
    const std::int16_t first = chosen[0];
    EXPECT_EQ(draw(6), "5 people");
    EXPECT_EQ(chosen[4], first);
    EXPECT_EQ(usedmarks[static_cast<std::size_t>(first)], 11);
}

TEST_F(Selection, AMarkEqualToTheLevelIsRefused)
{
    tests::setnumbered(20, 0);
    usedmarks.assign(usedmarks.size(), 1);
    usedmarks[7] = 0;
    qtype = 6;
    EXPECT_EQ(getitem(0), 7); // the only one below level 1
    usedmarks.assign(usedmarks.size(), 32767);
    EXPECT_GE(getitem(0), 0); // nor does a mark at its limit keep an item away for ever
    EXPECT_LE(*std::max_element(usedmarks.begin(), usedmarks.end()), 32767);
}

// Which items a type never draws: those whose comparison text is empty or a single blank.
TEST_F(Selection, BlankTexts)
{
    const struct {
        std::int16_t type;
        bool drawn;
    } cases[] = {{1, true},  {2, false}, {3, true},  {4, false}, {5, true},   {6, false}, {7, true},
                 {8, false}, {9, true},  {10, true}, {11, true}, {12, false}, {13, false}};
    for (const auto& c : cases) {
        tests::setnumbered(5, 5);
        people.insert(people.begin(), tests::person("", tests::year(1)));
        events.insert(events.begin(), tests::event(" ", tests::year(2)));
        npeople = nevents = 6;
        bool seen = false;
        for (int game = 0; game < 40; ++game) {
            clearmarks();
            draw(c.type);
            seen = seen || std::count(chosen.begin(), chosen.begin() + 5, 0) > 0;
        }
        EXPECT_EQ(seen, c.drawn) << c.type;
        people[0].desc1 = events[0].desc2 = "  "; // two blanks pass
    }
}

TEST_F(Selection, EqualTextsAndTooFewItems)
{
    ByType<bool> all{};
    std::fill(all.begin() + 1, all.begin() + 1 + lasttype, true);
    tests::setnumbered(6, 6);
    EXPECT_EQ(fillabletypes(), all);
    people[1] = people[0];
    events[1] = events[0];
    EXPECT_EQ(fillabletypes(), all); // exactly five different ones are left
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        EXPECT_EQ(draw(type).front(), '5') << type;
    }
    people[2] = people[0];
    events[2] = events[0];
    EXPECT_EQ(fillabletypes(), ByType<bool>{});
    people[2].desc2 = "other"; // only the first description line counts
    people[2].date2 = 2000;    // for some types only the first date does
    ByType<bool> datesalone{};
    datesalone[1] = true;
    EXPECT_EQ(fillabletypes(), datesalone);
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

// Among the items that pass, each is equally likely.
TEST_F(Selection, IsUniform)
{
    constexpr int items = 12;
    constexpr int draws = 6000;
    tests::setnumbered(0, items);
    std::vector<double> counts(items);
    for (int i = 0; i < draws; ++i) {
        clearmarks();
        usedmarks[3] = 1; // never while the others are fresh
        qtype = 13;
        ++counts[static_cast<std::size_t>(getitem(0))];
    }
    EXPECT_EQ(counts[3], 0);
    double chisquare = 0;
    const double expected = draws / (items - 1.0);
    for (std::size_t i = 0; i < counts.size(); ++i) {
        chisquare += i == 3 ? 0 : (counts[i] - expected) * (counts[i] - expected) / expected;
    }
    EXPECT_LT(chisquare, 29.6); // 0.1 % of fair generators exceed this with 10 degrees of freedom
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

TEST(Random, StaysBelowItsBound)
{
    seedrandom(42);
    for (int i = 0; i < 1000; ++i) {
        const double r = randomvalue();
        ASSERT_TRUE(r >= 0 && r < 1);
        ASSERT_TRUE(drawbelow(3) >= 0 && drawbelow(3) < 3);
    }
    EXPECT_EQ(drawbelow(0), 0);
    EXPECT_EQ(drawbelow(-5), 0);
}

} // namespace brindor
