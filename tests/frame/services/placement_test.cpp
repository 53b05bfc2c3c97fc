#include "frame/services/placement.h"

#include "support/gametest.h"
#include "toolkit/operations.h"

#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

namespace brindor {

using namespace toolkit;

namespace {

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

} // namespace

class Placement : public tests::GameTest {};

TEST_F(Placement, StoreRoundsAndStaysIn16Bits)
{
    Plain screen;
    screen.back = {192, 255, 128};
    const struct {
        double width, height;
        std::int16_t storedwidth, storedheight;
    } cases[] = {{12000, 9000, 12000, 9000}, {12000.5, 9001.5, 12000, 9002}, {57600, 32400, 32767, 32400}};
    for (const auto& c : cases) {
        screen.width = c.width;
        screen.height = c.height;
        screen.windowstate = maximised;
        placeform(screen, 10, storeplacement);
        EXPECT_EQ(placements[10].width, c.storedwidth);
        EXPECT_EQ(placements[10].height, c.storedheight);
        EXPECT_EQ(placements[10].windowstate, 2);
        EXPECT_EQ(placements[10].backcolor, 192 + 256 * 255 + 65536 * 128);
    }
    placeform(screen, 11, storeplacement);
    placeform(screen, -1, restoreplacement);
    EXPECT_EQ(screen.width, 57600);
}

TEST_F(Placement, ARestoreStoresNothing)
{
    Plain screen;
    screen.back = {1, 2, 3};
    screen.resize = [&screen] { placeform(screen, 1, storeplacement); };
    screen.shown = true; // so that each step of the restore raises a resize
    placements[1] = {2, 77, 5000, 6000};
    placeform(screen, 1, restoreplacement);
    EXPECT_EQ(screen.width, 6000);
    EXPECT_EQ(screen.height, 5000);
    EXPECT_EQ(screen.windowstate, 2);
    EXPECT_EQ(placements[1].backcolor, 77);
    EXPECT_EQ(screen.back, (Colour{1, 2, 3}));
}

TEST_F(Placement, Centring)
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
}

// The contents take the frame's left edge from before it is centred in the same pass.
TEST_F(Placement, FittingTheFrame)
{
    Plain screen;
    screen.width = 10000;
    screen.height = 8000;
    fitframe(screen, 2, screen.frame, {100, 60}, {&screen.row});
    EXPECT_EQ(screen.frame.place, (Place{50, 30, 9900, 7940}));
    EXPECT_EQ(screen.row.place, (Place{100, 300, 9500, 500}));
    EXPECT_EQ(placements[2].width, 10000);
    fitframe(screen, 2, screen.frame, {100, 60}, {&screen.row});
    EXPECT_EQ(screen.row.place, (Place{150, 300, 9500, 500}));
    screen.windowstate = maximised;
    screen.width = 15000;
    fitframe(screen, 2, screen.frame, {100, 60}, {&screen.row});
    EXPECT_EQ(placements[2].width, 10000);
    EXPECT_EQ(screen.row.place.width, 14500);
    screen.windowstate = minimised;
    fitframe(screen, 2, screen.frame, {100, 60}, {&screen.row});
    EXPECT_EQ(placements[2].windowstate, 1);
}

RC_GTEST_FIXTURE_PROP(Placement, AStoreAfterARestoreGivesTheSameNumbers, (std::int16_t width, std::int16_t height))
{
    Plain screen;
    const auto state = *rc::gen::inRange<std::int16_t>(0, 3);
    placements[4] = {state, 0, height, width};
    placeform(screen, 4, restoreplacement);
    placeform(screen, 4, storeplacement);
    RC_ASSERT(placements[4].width == width && placements[4].height == height && placements[4].windowstate == state);
}

} // namespace brindor
