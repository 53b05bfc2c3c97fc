#include "questions/selection.h"

#include "questions/question.h"
#include "questions/texts.h"
#include "support/programtest.h"
#include "timeline/usedmarks.h"

#include <cmath>
#include <set>
#include <string>
#include <utility>

namespace brindor {

class Selection : public tests::ProgramTest {
protected:
    // The texts of a question's five items.
    static std::set<std::string> draw(std::int16_t type)
    {
        std::set<std::string> texts;
        qtype = type;
        for (std::int16_t slot = 0; slot < 5; ++slot) {
            const std::int16_t item = getitem(slot);
            EXPECT_EQ(item, chosen[static_cast<std::size_t>(slot)]);
            texts.insert(getpstr(item, type));
        }
        return texts;
    }

    // How far numbers are from those expected.
    static double chisquare(const std::vector<double>& numbers, const std::vector<double>& expected)
    {
        double sum = 0;
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            sum += (numbers[i] - expected[i]) * (numbers[i] - expected[i]) / expected[i];
        }
        return sum;
    }
};

// Whatever the records hold: a type can be filled where five items of its family have different texts that are neither
// empty nor a single blank, and then it is filled with such, with the marks of a first draw.
RC_GTEST_FIXTURE_PROP(Selection, DrawsFiveDifferentGoodItemsWhereThereAreFive, ())
{
    const auto word = [] { return *rc::gen::element<std::string>("", " ", "  ", "a", "b", "c", "d", "e", "f"); };
    const auto number = [] { return *rc::gen::inRange<std::int16_t>(-1, 7); };
    std::vector<PersonRec> somepeople(*rc::gen::inRange<std::size_t>(0, 12));
    std::vector<EventRec> someevents(*rc::gen::inRange<std::size_t>(0, 12));
    for (PersonRec& person : somepeople) {
        person = tests::person(word(), tests::years(number(), number()), word(), word(), number(), number());
    }
    for (EventRec& event : someevents) {
        event = tests::event(word(), tests::year(number()), word(), word(), number(), number(), number());
    }
    tests::settimeline(somepeople, someevents);
    tests::setcatalogues({"a", "b", " ", ""}, {"a", "b", "c", "d"}, {"a", " "}, {"a", "b", "c", "d"});
    const ByType<bool> fillable = fillabletypes();
    for (std::int16_t type = 1; type <= lasttype; ++type) {
        const bool ofpeople = type <= 6;
        isperson = ofpeople ? 1 : 0;
        std::set<std::string> good;
        for (std::int16_t item = 0; item < (ofpeople ? npeople : nevents); ++item) {
            good.insert(getpstr(item, type));
        }
        good.erase("");
        good.erase(" ");
        RC_ASSERT(fillable[static_cast<std::size_t>(type)] == (good.size() >= 5));
        if (fillable[static_cast<std::size_t>(type)]) {
            clearmarks();
            const std::set<std::string> texts = draw(type);
            RC_ASSERT(texts.size() == 5U);
            RC_ASSERT(std::includes(good.begin(), good.end(), texts.begin(), texts.end()));
            std::vector<std::int16_t> marks(usedmarks.size(), 0);
            for (std::size_t slot = 0; slot < 5; ++slot) {
                marks[usedslot(ofpeople, chosen[slot])] = slot == 0 ? 10 : 1;
            }
            RC_ASSERT(usedmarks == marks);
        }
    }
}

// Five people: the second question climbs to level 2, and for its last slot to level 11.
TEST_F(Selection, ClimbsWhenTheFreshItemsAreUsedUpAndRefusesAMarkEqualToTheLevel)
{
    tests::setnumbered(5, 0);
    draw(6);
    const std::int16_t first = chosen[0];
    EXPECT_EQ(draw(6).size(), 5U);
    EXPECT_EQ(chosen[4], first);
    EXPECT_EQ(usedmarks[static_cast<std::size_t>(first)], 11);
    tests::setnumbered(200, 0);
    usedmarks.assign(201, 50);
    usedmarks[3] = 5;
    EXPECT_EQ(getitem(0), 3); // the only one below level 6
    usedmarks.assign(201, 32767);
    EXPECT_GE(getitem(0), 0); // nor does a mark at its limit keep an item away for ever
    EXPECT_EQ(usedmarks, std::vector<std::int16_t>(201, 32767));
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
    qtype = 6;
    EXPECT_EQ(getitem(0), 0); // of no people at all
    tests::settimeline({tests::person("", tests::year(1)), tests::person("x", tests::year(2))}, {});
    EXPECT_EQ(getitem(0), 1);
    EXPECT_EQ(getitem(1), 0);
    EXPECT_EQ(usedmarks, (std::vector<std::int16_t>{0, 10, 0}));
    EXPECT_TRUE(host.messages.empty());
    qtype = 14;
    EXPECT_EQ(getitem(0), 0);
    EXPECT_EQ(host.messages.at(0).text, "No action for 14");
    EXPECT_EQ(drawbelow(0) + drawbelow(-5), 0);
}

// 0.1 % of fair draws exceed the limit, with 10 degrees of freedom.
TEST_F(Selection, OfTheItemsThatPassEachIsEquallyLikely)
{
    tests::setnumbered(0, 12);
    std::vector<double> counts(12);
    qtype = 13;
    for (int i = 0; i < 11 * 500; ++i) {
        clearmarks();
        usedmarks[3] = 1; // never while the others are fresh
        ++counts[static_cast<std::size_t>(getitem(0))];
    }
    EXPECT_EQ(std::exchange(counts[3], 500), 0);
    EXPECT_LT(chisquare(counts, std::vector<double>(12, 500)), 29.6);
}

// The levels that nothing seems to pass are passed with the odds of 1001 blind tries each: 0 means the one good item of
// mark 0, 1 the two of mark 1, 2 the others. 0.1 % of fair draws exceed the limit, with 2 degrees of freedom.
TEST_F(Selection, KeepsTheOddsOfTheBlindTries)
{
    constexpr int items = 3000;
    constexpr int draws = 4000;
    tests::setnumbered(items, 0);
    const auto hit = [](int open) { return 1 - std::pow(1 - open / double{items}, 1001); };
    const double first = hit(1);
    const double second = (1 - first) * hit(3);
    const double third = 1 - first - second;
    people[4].name = people[5].name = ""; // of mark 0, but never good
    std::vector<double> counts(3);
    qtype = 6;
    for (int i = 0; i < draws; ++i) {
        usedmarks.assign(usedmarks.size(), 2);
        usedmarks[4] = usedmarks[5] = usedmarks[100] = 0;
        usedmarks[7] = usedmarks[2000] = 1;
        const std::int16_t item = getitem(0);
        ++counts[item == 100 ? 0 : item == 7 || item == 2000 ? 1 : 2];
    }
    EXPECT_LT(chisquare(counts, {draws * (first + second / 3 + third / items),
                                 draws * (second * 2 / 3 + third * 2 / items), draws * third * (items - 3.0) / items}),
              13.8);
}

} // namespace brindor
