#include "toolkit/layout.h"

#include <rapidcheck/gtest.h>

// Plain boxes in pixels, without a window.
namespace brindor::tests {

namespace {

using namespace toolkit;

constexpr PixelSize room{400, 300};
constexpr TextRoom textroom{32, 20};

enum Trait : unsigned { hidden = 1, fillsrow = 2, narrows = 4, borderless = 8 };

// A leaf or, where it needs a height, a text.
Box box(PixelRect record, int needed = 0, unsigned traits = 0)
{
    Box made;
    made.record = record;
    if (needed > 0) {
        made.heightfor = [needed](int) { return needed; };
    }
    made.visible = (traits & hidden) == 0;
    made.fillsrow = (traits & fillsrow) != 0;
    made.narrows = (traits & narrows) != 0;
    return made;
}

Box frame(PixelRect record, std::vector<Box> children, unsigned traits = 0)
{
    Box made = box(record);
    made.container = true;
    made.counts = (traits & borderless) == 0;
    made.children = std::move(children);
    return made;
}

std::string textof(const PixelRect& rect)
{
    return std::to_string(rect.left) + ',' + std::to_string(rect.top) + ' ' + std::to_string(rect.width) + 'x' +
           std::to_string(rect.height);
}

std::string placesof(const std::vector<Box>& boxes)
{
    std::string places;
    for (const Box& at : boxes) {
        places += (places.empty() ? "" : "; ") + textof(at.placed) +
                  (at.children.empty() ? "" : " (" + placesof(at.children) + ")");
    }
    return places;
}

TEST(LayoutTest, ABoxIsMovedOrSizedWrongOrItsCanvasIsTooSmallTooLargeOrOutOfTheMiddle)
{
    const struct {
        const char* what;
        std::vector<Box> boxes;
        const char* places; // and, behind it, the records' corner on the canvas and the size of that
        bool centred = false;
    } cases[] = {
        {"what lies below moves down",
         {box({10, 10, 100, 20}, 50), box({10, 40, 100, 20}), box({200, 40, 100, 20}), box({10, 70, 100, 20}, 30),
          box({10, 90, 100, 20}, 20)},
         "10,10 100x50; 10,70 100x20; 200,70 100x20; 10,100 100x30; 10,130 100x20 on 0,0 400x300"},
        {"of two side by side the higher counts",
         {box({0, 0, 100, 20}, 50), box({100, 0, 100, 20}, 70), box({0, 20, 100, 20})},
         "0,0 100x50; 100,0 100x70; 0,70 100x20 on 0,0 400x300"},
        {"a bar stays on its row and fills it",
         {box({0, 0, 300, 50}, 90), box({0, 60, 300, 50}, 90), box({100, 60, 100, 50}, 0, fillsrow)},
         "0,0 300x90; 0,100 300x90; 100,100 100x90 on 0,0 400x300"},
        {"a hidden text pushes nothing",
         {box({0, 0, 100, 20}, 80, hidden), box({0, 20, 100, 20})},
         "0,0 100x80; 0,20 100x20 on 0,0 400x300"},
        {"a text that would reach beyond narrows",
         {box({10, 0, 900, 20}, 20, narrows), box({390, 40, 50, 20}, 20, narrows)},
         "10,0 370x20; 390,40 32x20 on 0,0 430x286"},
        {"a frame grows with its contents",
         {frame({10, 10, 100, 60}, {box({5, 5, 90, 20}, 40), box({5, 30, 90, 20})}), box({10, 80, 100, 20})},
         "10,10 100x80 (5,5 90x40; 5,50 90x20); 10,100 100x20 on 0,0 400x300"},
        {"a frame cuts nothing off",
         {frame({50, 50, 40, 40}, {box({-20, -10, 100, 20}), box({10, 30, 100, 90})}, borderless)},
         "30,40 130x130 (-20,-10 100x20; 10,30 100x90) on 0,0 400x300"},
        {"it fits", {box({0, 0, 400, 300})}, "0,0 400x300 on 0,0 400x300"},
        {"too wide", {box({0, 0, 401, 200})}, "0,0 401x200 on 0,0 409x286"},
        {"too high", {box({0, 0, 380, 310})}, "0,0 380x310 on 0,0 386x318"},
        {"the bar takes the room", {box({0, 0, 390, 310})}, "0,0 390x310 on 0,0 398x318"},
        {"off the left edge", {box({-50, 0, 380, 310})}, "-50,0 380x310 on 58,0 396x318"},
        {"a wide frame", {frame({0, 0, 500, 100}, {})}, "0,0 500x100 on 0,0 508x286"},
        {"a frame without a border need not be reached",
         {frame({-50, -50, 900, 900}, {box({60, 60, 300, 200})}, borderless)},
         "-50,-50 900x900 (60,60 300x200) on 0,0 400x300"},
        {"too high, in the middle", {box({10, 10, 180, 380})}, "10,10 180x380 on 93,0 386x398", true},
        {"in the middle", {box({10, 10, 180, 80})}, "10,10 180x80 on 100,100 400x300", true},
        {"not in the middle", {box({10, 10, 180, 80})}, "10,10 180x80 on 0,0 400x300"},
    };
    for (const auto& c : cases) {
        std::vector<Box> boxes = c.boxes;
        arrange(boxes, room, textroom);
        const CanvasPlan plan = plancanvas(boxes, room, 14, 8, c.centred);
        const PixelRect canvas{plan.origin.x, plan.origin.y, plan.canvas.width, plan.canvas.height};
        EXPECT_EQ(placesof(boxes) + " on " + textof(canvas), c.places) << c.what;
    }
}

// Whatever the records say.
RC_GTEST_PROP(LayoutTest, ATextIsCutOrOutOfReachOrTheOrderIsLost, ())
{
    const auto number = [](int low, int high) { return *rc::gen::inRange(low, high); };
    std::vector<Box> boxes;
    for (int i = number(1, 8); i > 0; --i) {
        const PixelRect record{number(-300, 500), number(-300, 500), number(1, 300), number(1, 100)};
        boxes.push_back(box(record, number(-100, 200)));
    }
    arrange(boxes, room, textroom);
    const CanvasPlan plan = plancanvas(boxes, room, 14, 8, number(0, 2) == 0);
    const PixelRect canvas{0, 0, plan.canvas.width, plan.canvas.height};
    for (const Box& a : boxes) {
        RC_ASSERT(canvas.united(a.placed.moved(plan.origin)) == canvas);
        RC_ASSERT(a.placed.height >= (a.heightfor ? a.heightfor(a.placed.width) : a.record.height));
        for (const Box& b : boxes) {
            RC_ASSERT(a.record.top > b.record.top || b.placed.top - a.placed.top >= b.record.top - a.record.top);
            RC_ASSERT(a.record.bottom() > b.record.top || a.placed.bottom() <= b.placed.top);
        }
    }
}

} // namespace

} // namespace brindor::tests
