#include "toolkit/layout.h"

#include "toolkit/operations.h"

#include <algorithm>

namespace brindor::toolkit {

namespace {

// Where the heights of a container have moved to. Between two neighbouring edges nothing changes but where a box
// that ends at the lower one needs more than it has.
class HeightMap {
public:
    HeightMap(const std::vector<Box>& boxes, const std::vector<int>& needed, int ownheight)
    {
        from_ = {0, ownheight};
        for (const Box& box : boxes) {
            from_.push_back(box.record.top);
            from_.push_back(box.record.bottom());
        }
        std::sort(from_.begin(), from_.end());
        from_.erase(std::unique(from_.begin(), from_.end()), from_.end());
        to_ = from_;
        for (std::size_t i = 1; i < from_.size(); ++i) {
            to_[i] = to_[i - 1] + from_[i] - from_[i - 1];
            for (std::size_t b = 0; b < boxes.size(); ++b) {
                if (boxes[b].visible && boxes[b].record.bottom() == from_[i]) {
                    to_[i] = std::max(to_[i], at(boxes[b].record.top) + needed[b]);
                }
            }
        }
    }

    int at(int height) const
    {
        const auto found = std::lower_bound(from_.begin(), from_.end(), height);
        return to_[static_cast<std::size_t>(found - from_.begin())];
    }

private:
    std::vector<int> from_;
    std::vector<int> to_;
};

void collect(const std::vector<Box>& boxes, PixelPoint origin, bool visibleonly, PixelRect& reach)
{
    for (const Box& box : boxes) {
        if (visibleonly && !box.visible) {
            continue;
        }
        const PixelRect placed = box.placed.moved(origin);
        if (box.counts) {
            reach = reach.united(placed);
        }
        collect(box.children, {placed.left + box.origin.x, placed.top + box.origin.y}, visibleonly, reach);
    }
}

Colour surroundings(const Control& control)
{
    return control.container == nullptr ? control.screen->back : control.container->back;
}

std::vector<Box> boxesin(const Screen& screen, const Frame* container, const Measures& measures)
{
    std::vector<Box> boxes;
    for (const Control* control : screen.controls) {
        if (control->container != container) {
            continue;
        }
        Box& box = boxes.emplace_back();
        box.control = control;
        box.record = measures.pixels(control->place);
        box.visible = control->visible;
        if (control->kind == Kind::frame) {
            const auto& frame = static_cast<const Frame&>(*control);
            box.container = true;
            box.counts = frame.border;
            box.children = boxesin(screen, &frame, measures);
            continue;
        }
        box.fillsrow = isbar(*control) && rowof(static_cast<const Button&>(*control)) != nullptr;
        // What places itself may be made narrower than its texts.
        box.narrows =
            control->kind == Kind::label && control->opaque && !issurface(*control) && screen.resize != nullptr;
        if (control->kind == Kind::label || control->kind == Kind::button || control->kind == Kind::optionbutton) {
            box.heightfor = [&measures, control](int width) { return measures.heightfor(*control, width); };
        }
    }
    return boxes;
}

} // namespace

PixelRect PixelRect::united(const PixelRect& other) const
{
    const auto isnothing = [](const PixelRect& rect) { return rect.width == 0 && rect.height == 0; };
    if (isnothing(*this) || isnothing(other)) {
        return isnothing(*this) ? other : *this;
    }
    const int west = std::min(left, other.left);
    const int north = std::min(top, other.top);
    return {west, north, std::max(right(), other.right()) - west, std::max(bottom(), other.bottom()) - north};
}

bool isbar(const Control& control)
{
    return control.kind == Kind::button && static_cast<const Button&>(control).bar;
}

bool isdroptarget(const Control& control)
{
    return control.kind == Kind::label && static_cast<const Label&>(control).drop != nullptr;
}

bool issurface(const Control& control)
{
    return (control.kind == Kind::label && static_cast<const Label&>(control).outlined) ||
           (control.opaque && control.back != surroundings(control));
}

std::vector<Box> boxesof(const Screen& screen, const Measures& measures)
{
    return boxesin(screen, nullptr, measures);
}

PixelRect arrange(std::vector<Box>& boxes, PixelSize own, TextRoom room)
{
    std::vector<int> needed;
    std::vector<PixelRect> rects; // relative to the box's own record corner
    for (Box& box : boxes) {
        PixelRect rect{0, 0, box.record.width, box.record.height};
        if (box.container) {
            rect = arrange(box.children, box.record.size(), room);
            box.origin = {-rect.left, -rect.top};
        } else if (box.heightfor) {
            const int inside = box.narrows ? own.width - box.record.left - room.spare : rect.width;
            rect.width = std::max(std::min(rect.width, inside), room.leasttextwidth);
            rect.height = std::max(rect.height, box.heightfor(rect.width));
        }
        rects.push_back(rect);
        needed.push_back(rect.bottom());
    }
    const HeightMap heights(boxes, needed, own.height);
    PixelRect whole{0, 0, own.width, heights.at(own.height)};
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        Box& box = boxes[i];
        box.placed = rects[i].moved({box.record.left, heights.at(box.record.top)});
        if (box.fillsrow) {
            box.placed.height = heights.at(box.record.bottom()) - heights.at(box.record.top);
        }
        if (box.visible) {
            whole = whole.united(box.placed);
        }
    }
    return whole;
}

PixelRect reachofboxes(const std::vector<Box>& boxes, bool visibleonly)
{
    PixelRect reach;
    collect(boxes, {}, visibleonly, reach);
    return reach;
}

CanvasPlan plancanvas(const std::vector<Box>& boxes, PixelSize seen, int bar, int margin, bool centred)
{
    const PixelRect reach = reachofboxes(boxes, true);
    const PixelRect whole = reachofboxes(boxes, false);
    // What lies off the upper left corner, and a margin before it.
    const PixelPoint hidden{reach.left < 0 ? margin - reach.left : 0, reach.top < 0 ? margin - reach.top : 0};
    const PixelSize need{reach.right() + hidden.x, reach.bottom() + hidden.y};

    const bool vertical = need.height > seen.height || (need.height > seen.height - bar && need.width > seen.width);
    const bool horizontal = need.width > seen.width - (vertical ? bar : 0);
    const PixelSize inside{seen.width - (vertical ? bar : 0), seen.height - (horizontal ? bar : 0)};
    CanvasPlan plan{inside, hidden};
    if (horizontal) {
        plan.canvas.width = need.width + margin;
    } else if (centred && whole.width < inside.width) {
        plan.origin.x = (inside.width - whole.width) / 2 - whole.left;
    }
    if (vertical) {
        plan.canvas.height = need.height + margin;
    } else if (centred && whole.height < inside.height) {
        plan.origin.y = (inside.height - whole.height) / 2 - whole.top;
    }
    return plan;
}

} // namespace brindor::toolkit
