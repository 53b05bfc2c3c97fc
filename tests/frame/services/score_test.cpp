#include "frame/services/score.h"

#include "base/files.h"
#include "frame/services/log.h"
#include "frame/services/settings.h"
#include "support/gametest.h"

#include <filesystem>

namespace brindor {

class Score : public tests::GameTest {};

TEST_F(Score, PercentIsRoundedDown)
{
    const struct {
        std::int16_t points, possible;
        std::int16_t right, asked, percent;
    } steps[] = {{0, 5, 0, 5, 0}, {5, 5, 5, 10, 50}, {20, 20, 25, 30, 83}, {15, 25, 40, 55, 72}};
    for (const auto& s : steps) {
        addscore(s.points, s.possible, 0);
        EXPECT_EQ(players[0].right, s.right);
        EXPECT_EQ(players[0].asked, s.asked);
        EXPECT_EQ(players[0].percent, s.percent);
    }
    players[0] = {"", 0, 0, 0};
    addscore(2, 3, 1);
    EXPECT_EQ(log(), "Score: 2 out of 3  66%\r\n");
    EXPECT_EQ(host.messages.at(0).text, "Score: 2 out of 3  66%");
}

TEST_F(Score, LogByLevel)
{
    const struct {
        std::int16_t status;
        const char* written;
    } cases[] = {{0, ""}, {1, "one\r\ntwo\r\n"}, {2, "two\r\n"}};
    for (const auto& c : cases) {
        logstatus = c.status;
        resetlog();
        logline("one", 1, 0);
        logline("two", 2, 0);
        EXPECT_EQ(log(), c.written) << c.status;
    }
    EXPECT_TRUE(host.messages.empty());
    logline("three", 1, 1);
    EXPECT_TRUE(host.messages.empty()); // below the level: not even shown
    logline("four", 2, 1);
    EXPECT_EQ(host.messages.at(0).text, "four");
}

TEST_F(Score, AFailureToWriteIsToldOnce)
{
    std::filesystem::remove("bdqquiz.log");
    std::filesystem::create_directory("bdqquiz.log");
    logline("x", 2, 0);
    logline("y", 2, 0);
    faultplan = {1, true, 0};
    writesettings();
    ASSERT_EQ(host.messages.size(), 1U);
    EXPECT_EQ(host.messages[0].text, "bdqquiz.log cannot be written: Not a regular file. The game goes on without it. "
                                     "Check the program's folder and the space on its disk.");
}

} // namespace brindor
