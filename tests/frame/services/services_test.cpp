#include "base/files.h"
#include "frame/services/log.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "support/gametest.h"
#include "support/story.h"
#include "toolkit/operations.h"

#include <filesystem>

namespace brindor {

using namespace toolkit;

class Services : public tests::GameTest {
protected:
    struct Plain : Screen {
        Plain()
        {
            add(*this, frame, "Frame1");
            add(frame, row, "row");
            row.place = {0, 300, 0, 500};
        }

        Frame frame;
        Label row;
    };
};

TEST_F(Services, APlacementIsStoredIn16BitsAndARestoreStoresNothing)
{
    for (const auto row : std::initializer_list<std::int16_t>{0, 10}) {
        Plain screen;
        screen.back = {192, 255, 128};
        screen.windowstate = maximised;
        const std::array<double, 4> sizes[] = {{12000.5, 9001.5, 12000, 9002}, {57600, 32400, 32767, 32400}};
        for (const auto& [width, height, storedwidth, storedheight] : sizes) {
            screen.width = width;
            screen.height = height;
            placeform(screen, row, storeplacement);
            EXPECT_EQ(placements[static_cast<std::size_t>(row)].width, storedwidth);
            EXPECT_EQ(placements[static_cast<std::size_t>(row)].height, storedheight);
            EXPECT_EQ(placements[static_cast<std::size_t>(row)].windowstate, 2);
            EXPECT_EQ(placements[static_cast<std::size_t>(row)].backcolor, 192 + 256 * 255 + 65536 * 128);
        }
        placeform(screen, 11, storeplacement);
        placeform(screen, -1, restoreplacement);
        EXPECT_EQ(screen.width, 57600);
        screen.resize = [&screen, row] { placeform(screen, row, storeplacement); };
        screen.shown = true; // so that each step of the restore raises a resize
        placements[static_cast<std::size_t>(row)] = {1, 77, 5001, 6001};
        placeform(screen, row, restoreplacement);
        EXPECT_EQ(screen.width * 10 + screen.height + screen.windowstate, 60010 + 5001 + 1);
        EXPECT_EQ(placements[static_cast<std::size_t>(row)].backcolor, 77);
        EXPECT_EQ(screen.back, (Colour{192, 255, 128}));
        screen.resize();
        EXPECT_NE(placements[static_cast<std::size_t>(row)].backcolor, 77); // and then it does again
    }
}

// The contents take the frame's left edge from before it is centred in the same pass.
TEST_F(Services, AFrameIsCentredAndFitsItsWindow)
{
    Plain screen;
    screen.width = 12001;
    screen.height = 20000;
    centerform(screen);
    EXPECT_EQ(screen.left, (15360 - 12001) * 0.5);
    EXPECT_EQ(screen.top, (11520 - 20000) * 0.5); // larger than the display
    screen.frame.place = {0, 0, 1000, 500};
    centerframe(screen.frame, screen);
    EXPECT_EQ(screen.frame.place, (Place{5500.5, 9750, 1000, 500}));
    const struct {
        double width;
        std::int16_t state;
        double left;
        std::int16_t kept;
    } steps[] = {{10000, normal, 5600.5, 10000},
                 {10000, normal, 150, 10000},
                 {15000, maximised, 150, 10000},
                 {15000, minimised, 150, 15000}};
    for (const auto& s : steps) {
        screen.width = s.width;
        screen.windowstate = s.state;
        fitframe(screen, 2, screen.frame, {100, 60}, {&screen.row});
        EXPECT_EQ(screen.frame.place, (Place{50, 30, s.width - 100, 19940}));
        EXPECT_EQ(screen.row.place, (Place{s.left, 300, s.width - 500, 500}));
        EXPECT_EQ(placements[2].width, s.kept);
    }
}

TEST_F(Services, ScoreAndLogLinesFollowTheLevel)
{
    addscore(0, 1, 0);
    addscore(2, 2, 1);
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
    EXPECT_EQ(tests::said(host), "bdqquiz.log cannot be written: Not a regular file. The game goes on without it. "
                                 "Check the program's folder and the space on its disk.\n");
}

} // namespace brindor
