#include "questions/sortvalues.h"

#include "questions/marks.h"
#include "questions/question.h"
#include "support/programtest.h"
#include "support/timelines.h"
#include "timeline/usedmarks.h"

namespace brindor {

class SortValues : public tests::ProgramTest {
protected:
    SortValues()
    {
        tests::settimeline({tests::person("a", tests::years(-44, 14, approx))}, {tests::event("b", tests::year(7))});
    }
};

TEST_F(SortValues, AreTheFirstDates)
{
    EXPECT_EQ(getsortval(0, 1), -44);
    EXPECT_EQ(getsortval(0, 6), -44);
    EXPECT_EQ(getsortval(0, 7), 7);
    EXPECT_EQ(getsortval(0, 13), 7);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(getsortval(0, 2), 0);
    EXPECT_EQ(host.messages.at(0).text, "getsortval not defined2");
}

TEST_F(SortValues, MarksStayFrom0To32767AndApart)
{
    isperson = 1;
    markused(0, -1);
    EXPECT_EQ(usedmarks, (std::vector<std::int16_t>{0, 0, 0}));
    markused(0, 4);
    isperson = 0;
    markused(0, 10);
    EXPECT_EQ(usedmarks, (std::vector<std::int16_t>{10, 4, 0}));
    usedmarks[0] = 32765;
    markused(0, 4);
    EXPECT_EQ(usedmarks[0], 32767);
    markused(99, 4); // no such item: the last slot belongs to none
    EXPECT_EQ(usedmarks, (std::vector<std::int16_t>{32767, 4, 4}));
}

} // namespace brindor
