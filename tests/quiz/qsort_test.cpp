#include "quiz/qsort.h"

#include "support/quiztest.h"

#include <numeric>

namespace brindor {

using namespace toolkit;

class QsortTest : public tests::QuizTest {
protected:
    using Numbers = std::vector<std::int16_t>;

    // Plays a question about exactly five people, "A" with the first date, "B" ..., which stand in this order.
    std::string play(const Numbers& dates, const Numbers& order, const std::string& story)
    {
        std::vector<PersonRec> somepeople;
        for (const std::int16_t date : dates) {
            const auto letter = static_cast<char>('A' + std::ssize(somepeople));
            somepeople.push_back(tests::person(std::string(1, letter), tests::years(date, 2000)));
        }
        tests::settimeline(somepeople, {});
        qtype = 6;
        players.fill({});
        resetlog();
        std::string transcript;
        host.persons["qsort"] = [&](Screen& screen) {
            const auto& s = static_cast<Qsort&>(screen);
            std::copy(order.begin(), order.end(), chosen.begin());
            setmarks(100);
            EXPECT_EQ(s.label1.text + '|' + s.label2.text,
                      "Sort People by date with earliest date on top|Click to push an item up one slot");
            transcript = act(host, screen, story, [&s] {
                return std::accumulate(s.list1.lines.begin(), s.list1.lines.end(), std::string());
            });
            EXPECT_EQ(s.list1.font.points, s.closed ? 10 : 13.5);
            userclose(screen);
        };
        playqsort();
        return transcript;
    }
};

TEST_F(QsortTest, OrdersAgainstResultScoreMarksAndLog)
{
    const std::tuple<Numbers, Numbers, std::string, int, Numbers> cases[] = {
        // dates, order; the wrong pairs, the number of right ones, the marks of the lines from the top
        {{-500, -1, 100, 200, 300}, {0, 1, 2, 3, 4}, "", 10, {116, 112, 108, 104, 100}},
        {{-500, -1, 100, 200, 300},
         {4, 3, 2, 1, 0},
         "E 300 > D 200\r\nE 300 > C 100\r\nE 300 > B -1\r\nE 300 > A -500\r\nD 200 > C 100\r\nD 200 > B -1\r\n"
         "D 200 > A -500\r\nC 100 > B -1\r\nC 100 > A -500\r\nB -1 > A -500\r\n",
         0,
         {96, 96, 96, 96, 96}},
        {{1, 2, 3, 4, 5}, {0, 2, 1, 3, 4}, "C 3 > B 2\r\n", 9, {116, 107, 107, 104, 100}},
        {{7, 7, 7, 9, 9}, {2, 0, 1, 4, 3}, "", 10, {116, 112, 108, 104, 100}}};
    for (const auto& [dates, order, wrong, right, marks] : cases) {
        play(dates, order, "Command1");
        const std::string points = std::to_string(2 * right);
        EXPECT_EQ(heading + '|' + result, "Results for Sorting People by date|" +
                                              (wrong.empty() ? "*** All correct!\r\n" : " \r\n" + wrong) + "*** " +
                                              std::to_string(right) + " of 10 correct, scored " + points);
        EXPECT_EQ(score, "Current score: " + points + " of 20  (" + std::to_string(10 * right) + "%)");
        EXPECT_EQ(chosenmarks(), marks);
        std::string written = log();
        written.erase(33, 15); // five names of one letter
        EXPECT_EQ(written, "Items to sort by People by date\r\n" + (wrong.empty() ? " *** All Correct!\r\n" : wrong));
    }
}

TEST_F(QsortTest, ClicksPushUpAndOnlyClicks)
{
    EXPECT_EQ(play({1, 2, 3, 4, 5}, {0, 1, 2, 3, 4},
                   "List1#4; ?; List1#4; ?; List1#0; ?; List1#1; ?; List1#5; List1#-1; esc; return; Command2"),
              "ABCED\nABCDE\nABCDE\nBACDE\n!List1#5\n!List1#-1\n!esc\n!return\nSort the items listed.  Click on a line "
              "to move that item up one level.  When all are in position, click 'Done'\n");
    EXPECT_EQ(host.shown, std::vector<std::string>{"qsort"}); // no result after the title bar
    EXPECT_EQ(players[0].asked, 0);
}

} // namespace brindor
