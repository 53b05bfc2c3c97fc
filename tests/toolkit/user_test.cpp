#include "toolkit/user.h"

#include "support/memoryhost.h"
#include "toolkit/operations.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>

// What the records and their doors do by themselves. What holds for a person before any host is in contract_test.cpp.
namespace brindor::tests {

namespace {

using namespace toolkit;

struct Desk : Screen {
    Desk()
    {
        name = "desk";
        add(*this, frame, "frame");
        add(frame, field, "field");
        add(frame, spin, "spin");
        add(frame, list, "list");
        for (std::size_t i = 0; i < bars.size(); ++i) {
            add(frame, bars[i], indexed("bar", static_cast<int>(i)));
            bars[i].bar = true;
        }
        add(*this, button, "button");
        add(*this, target, "target");
        spin.buddy = &field;
        field.change = [this] { log += "change " + field.text + "; "; };
        field.leave = [this] { log += "leave; "; };
        button.click = [this] { log += "click; "; };
        target.drop = [this] { log += "drop; "; };
        load = [this] { log += "load; "; };
        resize = [this] { log += "resize; "; };
        unload = [this] { log += "unload; "; };
    }

    Frame frame;
    TextBox field;
    Spin spin;
    List list;
    std::array<Button, 2> bars;
    Button button;
    Label target;
    std::string log;
};

class UserTest : public testing::Test {
protected:
    // What happens to the desk while somebody does this and closes it.
    std::string during(const std::function<void()>& act)
    {
        host.persons["desk"] = [&](Screen&) {
            desk.log.clear();
            act();
            const std::string log = desk.log;
            closescreen(desk);
            desk.log = log;
        };
        showmodal(desk);
        return desk.log;
    }

    MemoryHost host;
    Desk desk;
};

TEST_F(UserTest, AScreenIsLoadedOnceAtItsFirstTouch)
{
    load(desk);
    load(desk);
    EXPECT_EQ(desk.log, "load; ");
    host.persons["desk"] = [this](Screen&) { userclose(desk); };
    showmodal(desk);
    EXPECT_EQ(desk.log, "load; resize; unload; ");
    closescreen(desk);
    EXPECT_FALSE(userclick(desk.button));
    EXPECT_EQ(desk.log, "load; resize; unload; ");
}

TEST_F(UserTest, NobodyReachesAScreenThatIsNotShown)
{
    EXPECT_FALSE(userclick(desk.button));
    EXPECT_FALSE(userclose(desk));
    EXPECT_FALSE(userresize(desk, 100, 100, normal));
    EXPECT_EQ(desk.log, "");
}

TEST_F(UserTest, AContainerTakesItsControlsWithIt)
{
    EXPECT_EQ(during([this] {
                  hide(desk.frame);
                  EXPECT_FALSE(usertype(desk.field, "x"));
                  show(desk.frame);
                  EXPECT_TRUE(usertype(desk.field, "y"));
                  disable(desk.frame);
                  EXPECT_FALSE(usertype(desk.field, "x"));
              }),
              "change y; ");
}

TEST_F(UserTest, WhatLosingTheFocusDoesComesFirst)
{
    desk.field.leave = [this] {
        desk.log += "leave; ";
        hide(desk.button);
    };
    EXPECT_EQ(during([this] {
                  userfocus(desk.field);
                  EXPECT_FALSE(userclick(desk.button));
              }),
              "leave; ");
}

TEST_F(UserTest, AReadOnlyFieldTakesNoTyping)
{
    desk.field.readonly = true;
    EXPECT_EQ(during([this] { EXPECT_FALSE(usertype(desk.field, "x")); }), "");
}

TEST_F(UserTest, ASpinStaysInItsRange)
{
    desk.spin.low = 1;
    desk.spin.high = 3;
    EXPECT_EQ(during([this] {
                  for (const int step : {1, 1, 1, 1, -1, -1, -1}) {
                      userstep(desk.spin, step);
                  }
                  settext(desk.field, "99999");
                  userstep(desk.spin, 1);
                  disable(desk.field);
                  EXPECT_FALSE(userstep(desk.spin, -1));
              }),
              "change 1; change 2; change 3; change 2; change 1; change 99999; change 3; ");
}

TEST_F(UserTest, OneBarIsPickedUpAtATime)
{
    EXPECT_EQ(during([this] {
                  EXPECT_FALSE(userdrop(desk.target));
                  startdrag(desk.bars[0]);
                  startdrag(desk.bars[1]);
                  EXPECT_EQ(desk.dragged, &desk.bars[1]);
                  enddrag(desk.bars[0]);
                  EXPECT_TRUE(userdrop(desk.target));
                  EXPECT_TRUE(userdropnowhere(desk));
                  EXPECT_FALSE(userdropnowhere(desk));
                  EXPECT_FALSE(userpress(desk.button));
              }),
              "drop; ");
}

TEST_F(UserTest, LinesOutsideAListAreRefused)
{
    additem(desk.list, "only");
    desk.list.pick = [this](std::int16_t line) { desk.log += "pick " + std::to_string(line) + "; "; };
    EXPECT_EQ(during([this] {
                  EXPECT_FALSE(userpick(desk.list, -1));
                  EXPECT_FALSE(userpick(desk.list, 1));
                  EXPECT_TRUE(userpick(desk.list, 0));
                  selectline(desk.list, 1, true);
                  clearlist(desk.list);
                  EXPECT_FALSE(userpick(desk.list, 0));
              }),
              "pick 0; ");
    EXPECT_TRUE(desk.list.selected.empty());
}

TEST_F(UserTest, AHandlerMayEndTheScreenThatHoldsIt)
{
    auto screen = std::make_unique<Desk>();
    host.persons["desk"] = [](Screen& front) { userclick(find<Button>(front, "button")); };
    screen->button.click = [&screen] {
        closescreen(*screen);
        screen->button.click = nullptr;
    };
    showmodal(*screen);
    EXPECT_TRUE(screen->closed);
}

TEST_F(UserTest, SizesAreToldWhenTheyChange)
{
    EXPECT_EQ(during([this] {
                  resizeto(desk, 3000, 2000);
                  resizeto(desk, 3000, 2000);
                  userresize(desk, 3000, 2000, normal);
                  userresize(desk, 3000, 2000, minimised);
                  setwindowstate(desk, normal);
                  moveto(desk, 1, 2);
              }),
              "resize; resize; resize; ");
}

TEST_F(UserTest, AWindowFitsItsContentsAndAMargin)
{
    place(desk.frame, {240, 240, 3000, 1000});
    place(desk.field, {0, 0, 9000, 9000}); // inside the frame, which decides
    place(desk.button, {240, 1360, 1440, 480});
    fitcontents(desk, 240);
    EXPECT_EQ(desk.width, 3480 + host.frame.width);
    EXPECT_EQ(desk.height, 2080 + host.frame.height);
}

} // namespace

} // namespace brindor::tests
