#include "everything.h"
#include "support/memoryhost.h"

// What the doors of the records refuse and tell where no window could ask for it.
namespace brindor::tests {

using namespace toolkit;

TEST(UserTest, AScreenIsLoadedTwiceOrReachedOrShownWhenItIsClosedOrUsedAfterItsHandlerEndedIt)
{
    MemoryHost host;
    std::string log;
    Everything all("all", log, nullptr);
    all.load = [&] { all.note("loaded"); };
    const auto reached = [&] { return userclick(all.go) || userclose(all) || userresize(all, 100, 100, normal); };
    load(all);
    EXPECT_FALSE(reached());
    all.go.click = [&] { closescreen(all); };
    host.persons["all"] = [&](Screen&) { EXPECT_TRUE(userclick(all.go)); };
    showmodal(all);
    closescreen(all);
    EXPECT_FALSE(reached());
    Everything closing("all", log, nullptr);
    closing.load = [&] {
        closescreen(closing);
        closing.load = nullptr;
    };
    showmodal(closing);
    EXPECT_EQ(host.shown.size(), 1U);
    EXPECT_EQ(log, "loaded, resized to 9000, unloaded, unloaded");
}

TEST(UserTest, WhatIsNotThereIsPickedOrDroppedOrASizeIsToldTwice)
{
    MemoryHost host;
    std::string log;
    Everything all("all", log, nullptr);
    host.persons["all"] = [&](Screen&) {
        for (const bool did : {userpick(all.list, -1), userpick(all.list, 3), userpick(all.combo, -1),
                               userpick(all.combo, 3), userdrop(all.target), userdropnowhere(all), userpress(all.go)}) {
            EXPECT_FALSE(did);
        }
        startdrag(all.bars[0]);
        startdrag(all.bars[1]);
        enddrag(all.bars[0]);
        EXPECT_EQ(all.dragged, &all.bars[1]);
        place(all.inside, {0, 0, 9999, 9999}); // in its box, which decides
        fitcontents(all, 240);
        EXPECT_EQ(all.height, all.spin.place.top + 450 + 240 + host.frame.height);
        for (int twice = 0; twice < 2; ++twice) {
            resizeto(all, all.width, 2000);
            userresize(all, all.width, 2000, minimised);
        }
        setwindowstate(all, normal);
        closescreen(all);
    };
    showmodal(all);
    EXPECT_EQ(all.dragged, nullptr);
    EXPECT_EQ(log, "resized to 9000, resized to 8570, resized to 8570, min resized to 8570, resized to 8570, unloaded");
}

} // namespace brindor::tests
