#pragma once

#include "toolkit/controls.h"

#include <functional>
#include <vector>

// Where the controls of a screen stand in its window: the rule that all hosts share. The records' places are never
// changed: what is worked out here only lives in the window. All numbers are pixels of the host.
namespace brindor::toolkit {

struct PixelPoint {
    int x = 0;
    int y = 0;

    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

struct PixelSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

struct PixelRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int right() const { return left + width; } // the first column and row beyond it
    int bottom() const { return top + height; }
    PixelSize size() const { return {width, height}; }
    PixelRect moved(PixelPoint by) const { return {left + by.x, top + by.y, width, height}; }
    PixelRect united(const PixelRect& other) const; // one of neither width nor height counts for nothing

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

// One control. All places are counted from the top left corner of its container.
struct Box {
    const Control* control = nullptr;
    PixelRect record; // where the record puts it
    bool visible = true;
    bool container = false;                  // has children, if only none
    bool counts = true;                      // must be reached: all but containers that have no border
    bool fillsrow = false;                   // lies on a row, as high as that becomes
    bool narrows = false;                    // a text that wraps rather than reach beyond its container
    std::function<int(int width)> heightfor; // what a wrapped text needs at a width; none for other controls
    std::vector<Box> children;

    PixelRect placed;  // the answer
    PixelPoint origin; // of a container: where its record's corner lies in `placed`
};

bool isbar(const Control& control);
bool isdroptarget(const Control& control); // a label that takes bars

// A coloured surface, which keeps its text off its edge: an outlined label, or one or an option of another colour than
// what it lies on.
bool issurface(const Control& control);

// The boxes of a screen. `pixels` turns a record's place into pixels; `heightfor` measures the wrapped text of a label,
// button or option at a width. The boxes measure by them: they live as long as the boxes are used.
struct Measures {
    std::function<PixelRect(const Place& place)> pixels;
    std::function<int(const Control& control, int width)> heightfor;
};
std::vector<Box> boxesof(const Screen& screen, const Measures& measures);

// Places the boxes of one container of the size `own`. A text that needs more height than its record gives gets it,
// and what lies below it moves down with its own order and gaps kept: boxes with the same top stay together. A
// container grows with its children, also to the left and upwards, so that none is cut off. Gives back the rect that
// the container needs.
// No text is squeezed below `leasttextwidth`, and `spare` is kept free of texts that narrow, for a scroll bar.
struct TextRoom {
    int leasttextwidth = 0;
    int spare = 0;
};
PixelRect arrange(std::vector<Box>& boxes, PixelSize own, TextRoom room);

// The rect round all boxes that must be reached, of those that are visible or of all of them.
PixelRect reachofboxes(const std::vector<Box>& boxes, bool visibleonly);

struct CanvasPlan {
    PixelSize canvas;  // at least as large as what is seen of it
    PixelPoint origin; // where the records' corner lies on the canvas
};

// `seen` is the inside of the window without scroll bars, `bar` the width of one, `margin` what is left free between
// the outermost control and an edge that is scrolled to. With `centred`, contents that are smaller than the window
// stand in its middle.
CanvasPlan plancanvas(const std::vector<Box>& boxes, PixelSize seen, int bar, int margin, bool centred);

} // namespace brindor::toolkit
