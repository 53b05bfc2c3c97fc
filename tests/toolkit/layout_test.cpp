#include "toolkit/qt/layout.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

// Plain boxes in pixels, without a window.
namespace brindor::tests {

namespace {

using namespace toolkit::qt;

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
        places += textof(box.placed) + (box.children.empty() ? "" : " (" + placesof(box.children) + ")") + "; ";
    }
    return places;
}

std::string arranged(std::vector<Box> boxes)
{
    arrange(boxes, {400, 300}, {32, 0});
    return placesof(boxes);
}

std::string planned(std::vector<Box> boxes, bool centred = false)
{
    arrange(boxes, {400, 300}, {32, 0});
    const CanvasPlan plan = plancanvas(boxes, {400, 300}, 14, 8, centred);
    return textof({plan.origin, plan.canvas});
}

TEST(LayoutTest, ATextThatFitsMovesNothing)
{
    EXPECT_EQ(arranged({text({10, 10, 100, 20}, 20), leaf({10, 40, 100, 20})}), "10,10 100x20; 10,40 100x20; ");
}

TEST(LayoutTest, WhatLiesBelowMovesDown)
{
    EXPECT_EQ(arranged({text({10, 10, 100, 20}, 50), leaf({10, 40, 100, 20}), leaf({200, 40, 100, 20}),
                        text({10, 70, 100, 20}, 30), leaf({10, 90, 100, 20})}),
              "10,10 100x50; 10,70 100x20; 200,70 100x20; 10,100 100x30; 10,130 100x20; ");
}

TEST(LayoutTest, OfTwoTextsSideBySideTheHigherCounts)
{
    EXPECT_EQ(arranged({text({0, 0, 100, 20}, 50), text({100, 0, 100, 20}, 70), leaf({0, 20, 100, 20})}),
              "0,0 100x50; 100,0 100x70; 0,70 100x20; ");
}

TEST(LayoutTest, ABarStaysOnItsRow)
{
    EXPECT_EQ(arranged({text({0, 0, 300, 50}, 90), text({0, 60, 300, 50}, 90), leaf({100, 60, 100, 30})}),
              "0,0 300x90; 0,100 300x90; 100,100 100x30; ");
}

TEST(LayoutTest, AHiddenTextPushesNothing)
{
    Box hidden = text({0, 0, 100, 20}, 80);
    hidden.visible = false;
    EXPECT_EQ(arranged({hidden, leaf({0, 20, 100, 20})}), "0,0 100x80; 0,20 100x20; ");
}

TEST(LayoutTest, AFrameGrowsWithItsContents)
{
    EXPECT_EQ(arranged({frame({10, 10, 100, 60}, {text({5, 5, 90, 20}, 40), leaf({5, 30, 90, 20})}),
                        leaf({10, 80, 100, 20})}),
              "10,10 100x80 (5,5 90x40; 5,50 90x20; ); 10,100 100x20; ");
}

TEST(LayoutTest, AFrameCutsNothingOff)
{
    std::vector<Box> boxes = {frame({50, 50, 40, 40}, {leaf({-20, -10, 100, 20}), leaf({10, 30, 100, 90})}, false)};
    arrange(boxes, {400, 300}, {32, 0});
    EXPECT_EQ(placesof(boxes), "30,40 130x130 (-20,-10 100x20; 10,30 100x90; ); ");
    EXPECT_EQ(boxes[0].origin, QPoint(20, 10));
}

TEST(LayoutTest, TheCanvasHoldsWhatMustBeReached)
{
    EXPECT_EQ(planned({leaf({0, 0, 400, 300})}), "0,0 400x300");
    EXPECT_EQ(planned({leaf({0, 0, 401, 200})}), "0,0 409x286");
    EXPECT_EQ(planned({leaf({0, 0, 380, 310})}), "0,0 386x318");
    EXPECT_EQ(planned({leaf({0, 0, 390, 310})}), "0,0 398x318"); // the one bar takes the room of the other
    EXPECT_EQ(planned({leaf({-50, 0, 380, 310})}), "58,0 386x318");
    EXPECT_EQ(planned({frame({-50, -50, 900, 900}, {leaf({60, 60, 300, 200})}, false)}), "0,0 400x300");
    EXPECT_EQ(planned({frame({0, 0, 500, 100}, {})}), "0,0 508x286");
}

TEST(LayoutTest, SmallContentsStandInTheMiddleWhereNothingElsePlacesThem)
{
    EXPECT_EQ(planned({leaf({10, 10, 380, 280})}, true), "0,0 400x300");
    EXPECT_EQ(planned({leaf({10, 10, 180, 380})}, true), "93,0 386x398");
    EXPECT_EQ(planned({leaf({10, 10, 180, 80})}, true), "100,100 400x300");
    EXPECT_EQ(planned({leaf({10, 10, 180, 80})}, false), "0,0 400x300");
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
    arrange(boxes, {400, 300}, {32, 0});
    const CanvasPlan plan = plancanvas(boxes, {400, 300}, 14, 8, number(0, 2) == 0);
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
