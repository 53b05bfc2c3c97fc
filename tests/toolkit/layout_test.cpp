#include "toolkit/qt/layout.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

// Plain boxes in pixels, without a window.
namespace brindor::tests {

namespace {

using namespace toolkit::qt;

constexpr QSize room(400, 300);
constexpr TextRoom textroom{32, 20};

Box leaf(QRect record)
{
    Box box;
    box.record = record;
    return box;
}

Box text(QRect record, int needed)
{
    Box box = leaf(record);
    box.heightfor = [needed](int) { return needed; };
    return box;
}

Box hidden(Box box)
{
    box.visible = false;
    return box;
}

Box onrow(QRect record)
{
    Box box = leaf(record);
    box.fillsrow = true;
    return box;
}

Box narrowing(QRect record)
{
    Box box = text(record, 20);
    box.narrows = true;
    return box;
}

Box frame(QRect record, std::vector<Box> children, bool border = true)
{
    Box box = leaf(record);
    box.container = true;
    box.counts = border;
    box.children = std::move(children);
    return box;
}

std::string textof(const QRect& rect)
{
    return std::to_string(rect.x()) + ',' + std::to_string(rect.y()) + ' ' + std::to_string(rect.width()) + 'x' +
           std::to_string(rect.height());
}

std::string placesof(const std::vector<Box>& boxes)
{
    std::string places;
    for (const Box& box : boxes) {
        places += (places.empty() ? "" : "; ") + textof(box.placed) +
                  (box.children.empty() ? "" : " (" + placesof(box.children) + ")");
    }
    return places;
}

TEST(LayoutTest, WhereTheBoxesCome)
{
    const struct {
        const char* what;
        std::vector<Box> boxes;
        const char* places;
    } cases[] = {
        {"a text that fits moves nothing",
         {text({10, 10, 100, 20}, 20), leaf({10, 40, 100, 20})},
         "10,10 100x20; 10,40 100x20"},
        {"what lies below moves down",
         {text({10, 10, 100, 20}, 50), leaf({10, 40, 100, 20}), leaf({200, 40, 100, 20}), text({10, 70, 100, 20}, 30),
          leaf({10, 90, 100, 20})},
         "10,10 100x50; 10,70 100x20; 200,70 100x20; 10,100 100x30; 10,130 100x20"},
        {"of two side by side the higher counts",
         {text({0, 0, 100, 20}, 50), text({100, 0, 100, 20}, 70), leaf({0, 20, 100, 20})},
         "0,0 100x50; 100,0 100x70; 0,70 100x20"},
        {"a bar stays on its row and fills it",
         {text({0, 0, 300, 50}, 90), text({0, 60, 300, 50}, 90), onrow({100, 60, 100, 50})},
         "0,0 300x90; 0,100 300x90; 100,100 100x90"},
        {"a hidden text pushes nothing",
         {hidden(text({0, 0, 100, 20}, 80)), leaf({0, 20, 100, 20})},
         "0,0 100x80; 0,20 100x20"},
        {"a text that would reach beyond narrows",
         {narrowing({10, 0, 900, 20}), narrowing({390, 40, 50, 20})},
         "10,0 370x20; 390,40 32x20"},
        {"a frame grows with its contents",
         {frame({10, 10, 100, 60}, {text({5, 5, 90, 20}, 40), leaf({5, 30, 90, 20})}), leaf({10, 80, 100, 20})},
         "10,10 100x80 (5,5 90x40; 5,50 90x20); 10,100 100x20"},
        {"a frame cuts nothing off",
         {frame({50, 50, 40, 40}, {leaf({-20, -10, 100, 20}), leaf({10, 30, 100, 90})}, false)},
         "30,40 130x130 (-20,-10 100x20; 10,30 100x90)"},
    };
    for (const auto& c : cases) {
        std::vector<Box> boxes = c.boxes;
        arrange(boxes, room, textroom);
        EXPECT_EQ(placesof(boxes), c.places) << c.what;
    }
}

TEST(LayoutTest, TheCanvasHoldsWhatMustBeReached)
{
    const struct {
        Box box;
        bool centred;
        const char* canvas; // the records' corner and the size
    } cases[] = {
        {leaf({0, 0, 400, 300}), false, "0,0 400x300"},
        {leaf({0, 0, 401, 200}), false, "0,0 409x286"},
        {leaf({0, 0, 380, 310}), false, "0,0 386x318"},
        {leaf({0, 0, 390, 310}), false, "0,0 398x318"},
        {leaf({-50, 0, 380, 310}), false, "58,0 396x318"},
        {frame({0, 0, 500, 100}, {}), false, "0,0 508x286"},
        {frame({-50, -50, 900, 900}, {leaf({60, 60, 300, 200})}, false), false, "0,0 400x300"},
        {leaf({10, 10, 380, 280}), true, "0,0 400x300"},
        {leaf({10, 10, 180, 380}), true, "93,0 386x398"},
        {leaf({10, 10, 180, 80}), true, "100,100 400x300"},
        {leaf({10, 10, 180, 80}), false, "0,0 400x300"},
    };
    for (const auto& c : cases) {
        std::vector<Box> boxes = {c.box};
        arrange(boxes, room, textroom);
        const CanvasPlan plan = plancanvas(boxes, room, 14, 8, c.centred);
        EXPECT_EQ(textof({plan.origin, plan.canvas}), c.canvas) << textof(c.box.record);
    }
}

// Whatever the records say: no text is cut, order and gaps from top to bottom are kept, and all can be scrolled to.
RC_GTEST_PROP(LayoutTest, NothingIsLost, ())
{
    const auto number = [](int low, int high) { return *rc::gen::inRange(low, high); };
    std::vector<Box> boxes;
    for (int i = number(1, 8); i > 0; --i) {
        const QRect record(number(-300, 500), number(-300, 500), number(1, 300), number(1, 100));
        boxes.push_back(number(0, 2) == 0 ? leaf(record) : text(record, number(0, 200)));
    }
    arrange(boxes, room, textroom);
    const CanvasPlan plan = plancanvas(boxes, room, 14, 8, number(0, 2) == 0);
    const QRect canvas(QPoint(0, 0), plan.canvas);
    for (const Box& a : boxes) {
        RC_ASSERT(canvas.contains(a.placed.translated(plan.origin)));
        RC_ASSERT(a.placed.height() >= (a.heightfor ? a.heightfor(a.placed.width()) : a.record.height()));
        for (const Box& b : boxes) {
            if (a.record.top() <= b.record.top()) {
                RC_ASSERT(b.placed.top() - a.placed.top() >= b.record.top() - a.record.top());
            }
            if (a.record.bottom() < b.record.top()) {
                RC_ASSERT(a.placed.bottom() < b.placed.top());
            }
        }
    }
}

} // namespace

} // namespace brindor::tests
