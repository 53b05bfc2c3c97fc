#include "toolkit/user.h"

#include "everything.h"
#include "support/memoryhost.h"

#include <gtest/gtest.h>

#include <memory>

// What the doors of the records refuse and tell where no window could ask for it.
namespace brindor::tests {

namespace {

using namespace toolkit;

class UserTest : public testing::Test {
protected:
    void during(const std::function<void()>& act)
    {
        host.persons["all"] = [this, act](Screen&) {
            act();
            closescreen(all);
        };
        showmodal(all);
    }

    MemoryHost host;
    std::string log;
    Everything all{"all", log, nullptr};
};

TEST_F(UserTest, AScreenIsLoadedTwiceOrReachedWhileItIsNotShown)
{
    all.load = [this] { all.note("loaded"); };
    load(all);
    load(all);
    const auto refused = [this] { return !userclick(all.go) && !userclose(all) && !userresize(all, 100, 100, normal); };
    EXPECT_TRUE(refused());
    EXPECT_EQ(log, "loaded");
    during([] {});
    closescreen(all);
    EXPECT_TRUE(refused());
    EXPECT_EQ(log, "loaded, resized to 9000, unloaded");
}

TEST_F(UserTest, AScreenThatClosesAtOnceIsShown)
{
    all.load = [this] { closescreen(all); };
    showmodal(all);
    EXPECT_TRUE(host.shown.empty());
    EXPECT_EQ(log, "unloaded");
}

TEST_F(UserTest, AHandlerThatEndsTheScreenThatHoldsItIsUsedAfterIt)
{
    all.go.click = [this] {
        closescreen(all);
        all.go.click = nullptr;
    };
    host.persons["all"] = [this](Screen&) { userclick(all.go); };
    showmodal(all);
    EXPECT_TRUE(all.closed);
}

TEST_F(UserTest, WhatIsNotThereIsPickedDroppedOrPressed)
{
    during([this] {
        for (const bool did : {userpick(all.list, -1), userpick(all.list, 3), userpick(all.combo, -1),
                               userpick(all.combo, 3), userdrop(all.target), userdropnowhere(all), userpress(all.go)}) {
            EXPECT_FALSE(did);
        }
        startdrag(all.bars[0]);
        startdrag(all.bars[1]);
        enddrag(all.bars[0]);
        EXPECT_EQ(all.dragged, &all.bars[1]);
    });
    EXPECT_EQ(all.dragged, nullptr);
    EXPECT_EQ(log, "resized to 9000, unloaded");
}

TEST_F(UserTest, ASizeOrStateIsToldTwiceOrNever)
{
    during([this] {
        resizeto(all, 9000, 2000);
        resizeto(all, 9000, 2000);
        userresize(all, 9000, 2000, normal);
        userresize(all, 9000, 2000, minimised);
        setwindowstate(all, normal);
        moveto(all, 1, 2);
    });
    EXPECT_EQ(log, "resized to 9000, resized to 9000, resized to 9000, resized to 9000, unloaded");
}

TEST_F(UserTest, AWindowDoesNotFitItsContentsAndAMargin)
{
    place(all.inside, {0, 0, 9999, 9999}); // in its box, which decides
    fitcontents(all, 240);
    EXPECT_EQ(all.width, 8300 + 240 + host.frame.width);
    EXPECT_EQ(all.height, all.spin.place.top + 450 + 240 + host.frame.height);
}

} // namespace

} // namespace brindor::tests
