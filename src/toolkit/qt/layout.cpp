#include "toolkit/qt/layout.h"

#include <algorithm>

namespace brindor::toolkit::qt {

namespace {

int bottomof(const QRect& rect)
{
    return rect.top() + rect.height();
}

// Where the heights of a container have moved to. Between two neighbouring edges nothing changes but where a box
// that ends at the lower one needs more than it has.
class HeightMap {
public:
    HeightMap(const std::vector<Box>& boxes, const std::vector<int>& needed, int ownheight)
    {
        from_ = {0, ownheight};
        for (const Box& box : boxes) {
            from_.push_back(box.record.top());
            from_.push_back(bottomof(box.record));
        }
        std::sort(from_.begin(), from_.end());
        from_.erase(std::unique(from_.begin(), from_.end()), from_.end());
        to_ = from_;
        for (std::size_t i = 1; i < from_.size(); ++i) {
            to_[i] = to_[i - 1] + from_[i] - from_[i - 1];
            for (std::size_t b = 0; b < boxes.size(); ++b) {
                if (boxes[b].visible && bottomof(boxes[b].record) == from_[i]) {
                    to_[i] = std::max(to_[i], at(boxes[b].record.top()) + needed[b]);
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

void collect(const std::vector<Box>& boxes, QPoint origin, bool visibleonly, QRect& reach)
{
    for (const Box& box : boxes) {
        if (visibleonly && !box.visible) {
            continue;
        }
        const QRect placed = box.placed.translated(origin);
        if (box.counts) {
            reach = reach.united(placed);
        }
        collect(box.children, placed.topLeft() + box.origin, visibleonly, reach);
    }
}

} // namespace

QRect arrange(std::vector<Box>& boxes, QSize own, TextRoom room)
{
    std::vector<int> needed;
    std::vector<QRect> rects; // relative to the box's own record corner
    for (Box& box : boxes) {
        QRect rect(QPoint(0, 0), box.record.size());
        if (box.container) {
            rect = arrange(box.children, box.record.size(), room);
            box.origin = -rect.topLeft();
        } else if (box.heightfor) {
            const int inside = box.narrows ? own.width() - box.record.left() - room.spare : rect.width();
            rect.setWidth(std::max(std::min(rect.width(), inside), room.leasttextwidth));
            rect.setHeight(std::max(rect.height(), box.heightfor(rect.width())));
        }
        rects.push_back(rect);
        needed.push_back(bottomof(rect));
    }
    const HeightMap heights(boxes, needed, own.height());
    QRect whole(0, 0, own.width(), heights.at(own.height()));
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        Box& box = boxes[i];
        box.placed = rects[i].translated(box.record.left(), heights.at(box.record.top()));
        if (box.fillsrow) {
            box.placed.setHeight(heights.at(bottomof(box.record)) - heights.at(box.record.top()));
        }
        if (box.visible) {
            whole = whole.united(box.placed);
        }
    }
    return whole;
}

QRect reachofboxes(const std::vector<Box>& boxes, bool visibleonly)
{
    QRect reach;
    collect(boxes, {}, visibleonly, reach);
    return reach;
}

CanvasPlan plancanvas(const std::vector<Box>& boxes, QSize seen, int bar, int margin, bool centred)
{
    const QRect reach = reachofboxes(boxes, true);
    const QRect whole = reachofboxes(boxes, false);
    // What lies off the upper left corner, and a margin before it.
    const QPoint hidden(reach.left() < 0 ? margin - reach.left() : 0, reach.top() < 0 ? margin - reach.top() : 0);
    const QSize need(reach.left() + reach.width() + hidden.x(), bottomof(reach) + hidden.y());

    const bool vertical =
        need.height() > seen.height() || (need.height() > seen.height() - bar && need.width() > seen.width());
    const bool horizontal = need.width() > seen.width() - (vertical ? bar : 0);
    const QSize inside(seen.width() - (vertical ? bar : 0), seen.height() - (horizontal ? bar : 0));
    CanvasPlan plan{inside, hidden};
    if (horizontal) {
        plan.canvas.setWidth(need.width() + margin);
    } else if (centred && whole.width() < inside.width()) {
        plan.origin.setX((inside.width() - whole.width()) / 2 - whole.left());
    }
    if (vertical) {
        plan.canvas.setHeight(need.height() + margin);
    } else if (centred && whole.height() < inside.height()) {
        plan.origin.setY((inside.height() - whole.height()) / 2 - whole.top());
    }
    return plan;
}

} // namespace brindor::toolkit::qt
