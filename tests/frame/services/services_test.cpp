#include "base/files.h"
#include "frame/services/log.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "support/gametest.h"
#include "support/story.h"

#include <filesystem>

namespace brindor {

class Services : public tests::GameTest {};

TEST_F(Services, ARestoreStoresNothingOnItsWay)
{
    struct Plain : toolkit::Screen {
    } screen;
    screen.resize = [&screen] { placeform(screen, 3, storeplacement); };
    screen.shown = true; // so that each step of the restore raises a resize
    placements[3] = {2, 77, 5000, 6000};
    placeform(screen, 3, restoreplacement);
    EXPECT_EQ(screen.width * 10 + screen.height + screen.windowstate, 65002);
    EXPECT_EQ(placements[3].backcolor, 77);
}

TEST_F(Services, ScoreAndLogLinesFollowTheLevel)
{
    addscore(1, 1, 0);
    EXPECT_EQ(players[0].percent, 100);
    addscore(1, 2, 1);
    EXPECT_EQ(tests::contentof("bdqquiz.log") + tests::said(host),
              "Score: 2 out of 3  66%\r\nScore: 2 out of 3  66%\n");
    for (const char* written : {"", "one\r\ntwo\r\n", "two\r\n"}) {
        logstatus = std::string(written).empty() ? 0 : written[0] == 'o' ? 1 : 2;
        resetlog();
        logline("one", 1, 0);
        logline("two", 2, 0);
        EXPECT_EQ(log(), written);
    }
    logline("three", 1, 1); // below the level: not even shown
    logline("four", 2, 1);
    EXPECT_EQ(tests::said(host), "four\n");
}

TEST_F(Services, AFailureToWriteIsToldOnce)
{
    std::filesystem::remove("bdqquiz.log");
    std::filesystem::create_directory("bdqquiz.log");
    logline("x", 2, 0);
    logline("y", 2, 0);
    faultplan = {1, true, 0};
    writesettings();
    EXPECT_EQ(tests::said(host),
              "bdqquiz.log cannot be written: Not a regular file. The game goes on, but settings and "
              "log may not be kept. Check the program's folder and the space on its disk.\n");
}

} // namespace brindor
