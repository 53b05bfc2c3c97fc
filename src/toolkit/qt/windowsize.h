#pragma once

#include "toolkit/host.h"

#include <QMargins>
#include <QSize>
#include <QWidget>

namespace brindor::toolkit::qt {

// The outer size of a window in twips and its inner one in pixels. A size that was given in twips comes back as it
// was given as long as the pixels have not changed, so that nothing drifts.
class WindowSize {
public:
    // Takes the outer size that the record gives; the value is the inner size for it.
    QSize give(double width, double height);

    // The outer size of a window whose inside has this size.
    Size outer(QSize inner) const;

private:
    Size given_;
    QSize givenpixels_;
};

// What the frame and title bar add to a window, learned from the first window that shows one; nothing before that.
// The window system tells it late and without an event.
QMargins framemargins();
void learnframe(const QWidget& shownwindow);

} // namespace brindor::toolkit::qt
