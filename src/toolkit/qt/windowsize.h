#pragma once

#include "toolkit/host.h"
#include "toolkit/qt/zoom.h"

#include <QMargins>
#include <QSize>
#include <QWidget>

namespace brindor::toolkit::qt {

// The outer size of a window in twips and its inner one in pixels. A size that was given in twips comes back as it
// was given as long as the pixels have not changed, so that nothing drifts, also where the display had no room for it.
// The frame does not zoom: it counts by the base zoom, whatever the window's own is.
class WindowSize {
public:
    WindowSize();

    // Takes the outer size that the record gives; the value is the inner size for it, which leaves room for the frame
    // in the work area.
    QSize give(Size outer, QSize workarea);

    // The outer size of a window whose inside has this size.
    Size outer(QSize inner, Zoom zoom);

    // The zoom at which the inside of a window of this outer size fills `inner`.
    Zoom filling(Size outer, QSize inner) const;

private:
    QMargins frame_; // as known when the size in hand was settled, so that its contents go on fitting
    Size given_;
    QSize givenpixels_;
};

// What the frame and title bar add to a window, learned from the first window that shows one; nothing before that.
// The window system tells it late and without an event.
QMargins framemargins();
void learnframe(const QWidget& shownwindow);

} // namespace brindor::toolkit::qt
