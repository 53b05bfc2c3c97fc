#pragma once

#include "toolkit/controls.h"

#include <QRect>
#include <QSize>

#include <functional>
#include <vector>

// Where the controls of a screen stand in its window. The records' places are never changed: what is worked out here
// only lives in the window.
namespace brindor::toolkit::qt {

// One control. All places are in pixels and counted from the top left corner of its container.
struct Box {
    const Control* control = nullptr;
    QRect record; // where the record puts it
    bool visible = true;
    bool container = false;                  // has children, if only none
    bool counts = true;                      // must be reached: all but containers that have no border
    bool fillsrow = false;                   // lies on a row, as high as that becomes
    bool narrows = false;                    // a text that wraps rather than reach beyond its container
    std::function<int(int width)> heightfor; // what a wrapped text needs at a width; none for other controls
    std::vector<Box> children;

    QRect placed;  // the answer
    QPoint origin; // of a container: where its record's corner lies in `placed`
};

// Places the boxes of one container of the size `own`. A text that needs more height than its record gives gets it,
// and what lies below it moves down with its own order and gaps kept: boxes with the same top stay together. A
// container grows with its children, also to the left and upwards, so that none is cut off. Gives back the rect that
// the container needs.
// No text is squeezed below `leasttextwidth`, and `spare` is kept free of texts that narrow, for a scroll bar.
struct TextRoom {
    int leasttextwidth = 0;
    int spare = 0;
};
QRect arrange(std::vector<Box>& boxes, QSize own, TextRoom room);

// The rect round all boxes that must be reached, of those that are visible or of all of them.
QRect reachofboxes(const std::vector<Box>& boxes, bool visibleonly);

struct CanvasPlan {
    QSize canvas;  // at least as large as what is seen of it
    QPoint origin; // where the records' corner lies on the canvas
};

// `seen` is the inside of the window without scroll bars, `bar` the width of one, `margin` what is left free between
// the outermost control and an edge that is scrolled to. With `centred`, contents that are smaller than the window
// stand in its middle.
CanvasPlan plancanvas(const std::vector<Box>& boxes, QSize seen, int bar, int margin, bool centred);

} // namespace brindor::toolkit::qt
