#include "quiz/qsort.h"

#include "frame/services/log.h"
#include "frame/services/score.h"
#include "support/quiztest.h"

#include <algorithm>
#include <numeric>

namespace brindor {

using namespace toolkit;

class QsortTest : public tests::QuizTest {
protected:
    // Exactly five people with these dates, so that all five are drawn; named after their dates.
    void setdates(const std::vector<std::int16_t>& dates)
    {
        std::vector<PersonRec> somepeople;
        char letter = 'A';
        for (const std::int16_t date : dates) {
            somepeople.push_back(tests::person(std::string(1, letter++), tests::years(date, 2000)));
        }
        tests::settimeline(somepeople, {});
    }

    // Plays a question with the items in this order of records, and gives the result text.
    std::string judge(const std::vector<std::int16_t>& order)
    {
        qtype = 6;
        host.persons["qsort"] = [&order](Screen& screen) {
            std::copy(order.begin(), order.end(), chosen.begin());
            setmarks(100);
            auto& s = static_cast<Qsort&>(screen);
            userclick(s.command1);
            EXPECT_EQ(s.list1.font.points, 10);
        };
        players.fill({});
        resetlog();
        playqsort();
        return result;
    }
};

TEST_F(QsortTest, OrdersAgainstResultScoreMarksAndLog)
{
    const std::string head = "Items to sort by People by date\r\n";
    const struct {
        std::vector<std::int16_t> dates, order;
        const char* result;
        const char* score;
        std::vector<std::int16_t> marks; // of the lines, from the top
    } cases[] = {
        {{-500, -1, 100, 200, 300},
         {0, 1, 2, 3, 4},
         "*** All correct!\r\n*** 10 of 10 correct, scored 20",
         "Current score: 20 of 20  (100%)",
         {116, 112, 108, 104, 100}},
        {{-500, -1, 100, 200, 300},
         {4, 3, 2, 1, 0},
         " \r\nE 300 > D 200\r\nE 300 > C 100\r\nE 300 > B -1\r\nE 300 > A -500\r\nD 200 > C 100\r\nD 200 > B -1\r\n"
         "D 200 > A -500\r\nC 100 > B -1\r\nC 100 > A -500\r\nB -1 > A -500\r\n*** 0 of 10 correct, scored 0",
         "Current score: 0 of 20  (0%)",
         {96, 96, 96, 96, 96}},
        {{1, 2, 3, 4, 5},
         {0, 2, 1, 3, 4},
         " \r\nC 3 > B 2\r\n*** 9 of 10 correct, scored 18",
         "Current score: 18 of 20  (90%)",
         {116, 107, 107, 104, 100}},
        {{1, 2, 3, 4, 5},
         {4, 0, 1, 2, 3},
         " \r\nE 5 > A 1\r\nE 5 > B 2\r\nE 5 > C 3\r\nE 5 > D 4\r\n*** 6 of 10 correct, scored 12",
         "Current score: 12 of 20  (60%)",
         {96, 111, 107, 103, 99}},
        {{7, 7, 7, 9, 9},
         {2, 0, 1, 4, 3},
         "*** All correct!\r\n*** 10 of 10 correct, scored 20",
         "Current score: 20 of 20  (100%)",
         {116, 112, 108, 104, 100}},
    };
    for (const auto& c : cases) {
        setdates(c.dates);
        EXPECT_EQ(judge(c.order), c.result);
        EXPECT_EQ(score, c.score);
        EXPECT_EQ(heading, "Results for Sorting People by date");
        EXPECT_EQ(chosenmarks(), c.marks);
        std::string expected = std::string(c.result).starts_with("***") ? " *** All Correct!\r\n" : "";
        std::string lines = c.result;
        if (expected.empty()) { // the wrong pairs, as on the screen
            expected = lines.substr(3, lines.find("***") - 3);
        }
        const std::string written = log();
        EXPECT_EQ(written.substr(0, head.size()), head);
        EXPECT_EQ(written.substr(head.size() + 15), expected); // behind five names of one letter
    }
}

TEST_F(QsortTest, ClicksPushUpAndOnlyClicks)
{
    setdates({1, 2, 3, 4, 5});
    qtype = 6;
    std::string order;
    const auto shown = [](const Qsort& s) {
        return std::accumulate(s.list1.lines.begin(), s.list1.lines.end(), std::string());
    };
    host.persons["qsort"] = [&](Screen& screen) {
        auto& s = static_cast<Qsort&>(screen);
        EXPECT_EQ(s.label1.text, "Sort People by date with earliest date on top");
        EXPECT_EQ(s.label2.text, "Click to push an item up one slot");
        std::iota(chosen.begin(), chosen.begin() + 5, std::int16_t{0});
        for (const std::int16_t line : std::vector<std::int16_t>{4, 4, 4, 3, 0, 1}) {
            EXPECT_TRUE(userpick(s.list1, line));
            order += shown(s) + ' ';
        }
        EXPECT_FALSE(userpick(s.list1, 5));
        EXPECT_FALSE(userpick(s.list1, -1));
        EXPECT_EQ(std::count(s.list1.selected.begin(), s.list1.selected.end(), true), 0);
        userclick(s.command2);
        userclose(s);
    };
    playqsort();
    EXPECT_EQ(order, "ABCED ABCDE ABCED ABECD ABECD BAECD ");
    EXPECT_EQ(host.messages.at(0).text,
              "Sort the items listed.  Click on a line to move that item up one level.  When all "
              "are in position, click 'Done'");
    EXPECT_EQ(host.shown, std::vector<std::string>{"qsort"}); // no result after the title bar
    EXPECT_EQ(players[0].asked, 0);
}

} // namespace brindor
