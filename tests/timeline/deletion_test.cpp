#include "timeline/deletion.h"

#include "support/programtest.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"

#include <string>

namespace brindor {

class Deletion : public tests::ProgramTest {
protected:
    // Three people and two events whose marks are 1 to 5 in the order of the slots, events first.
    Deletion()
    {
        tests::setnumbered(3, 2);
        usedmarks = {1, 2, 3, 4, 5, 0};
        host.answers = {true};
    }

    static std::string names()
    {
        std::string text;
        for (std::int16_t i = 0; i < eventcount(); ++i) {
            text += eventrec(i).name.substr(6) + ':' + std::to_string(usedmarks[usedslot(0, i)]) + ' ';
        }
        for (std::int16_t i = 0; i < peoplecount(); ++i) {
            text += personrec(i).name.substr(7) + ':' + std::to_string(usedmarks[usedslot(1, i)]) + ' ';
        }
        return text;
    }
};

TEST_F(Deletion, AsksFirst)
{
    host.answers = {false, false};
    deleteperson(0);
    deleteevent(0);
    EXPECT_EQ(names(), "0:1 1:2 0:3 1:4 2:5 ");
    ASSERT_EQ(host.messages.size(), 2U);
    EXPECT_EQ(host.messages[0].text, "Delete this person?");
    EXPECT_EQ(host.messages[1].text, "Delete this event?");
    EXPECT_EQ(host.messages[1].title, "Delete");
    EXPECT_TRUE(host.messages[1].question);
}

TEST_F(Deletion, EveryPositionAgainstOrderCursorAndMarks)
{
    const struct {
        std::int16_t k;
        std::int16_t cursor;
        std::int16_t cursorafter;
        const char* names;
    } cases[] = {
        {0, 0, 0, "0:1 1:2 1:4 2:5 "},      {1, 0, 0, "0:1 1:2 0:3 2:5 "}, {2, 0, 0, "0:1 1:2 0:3 1:4 "},
        {0, 2, 1, "0:1 1:2 1:4 2:5 "},      {2, 2, 1, "0:1 1:2 0:3 1:4 "}, {3, 1, 1, "0:1 1:2 0:3 1:4 2:5 "},
        {-1, 1, 1, "0:1 1:2 0:3 1:4 2:5 "},
    };
    for (const auto& c : cases) {
        tests::setnumbered(3, 2);
        usedmarks = {1, 2, 3, 4, 5, 0};
        curperson = c.cursor;
        host.answers = {true};
        deleteperson(c.k);
        EXPECT_EQ(names(), c.names) << c.k;
        EXPECT_EQ(curperson, c.cursorafter) << c.k;
        EXPECT_EQ(people.size(), 5U);
    }
}

TEST_F(Deletion, OfAnEventMovesThePeoplesSlots)
{
    deleteevent(0);
    EXPECT_EQ(names(), "1:2 0:3 1:4 2:5 ");
    EXPECT_EQ(nevents, 1);
    EXPECT_EQ(mindate, 9999); // the range is that of the load
}

TEST_F(Deletion, OfTheLastOneLeavesNone)
{
    tests::setnumbered(1, 0);
    deleteperson(0);
    EXPECT_EQ(npeople, 0);
    EXPECT_EQ(curperson, 0);
    host.answers = {true};
    deleteperson(0);
    EXPECT_EQ(npeople, 0);
}

} // namespace brindor
