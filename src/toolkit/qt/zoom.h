#pragma once

#include "toolkit/controls.h"

#include <QRect>
#include <QWidget>

namespace brindor::toolkit::qt {

inline constexpr double twipsinpixel = 15; // at zoom 1

// How large a window shows its screen: every length of a record becomes logical pixels here and nowhere else.
class Zoom {
public:
    Zoom() = default;
    explicit Zoom(double factor) : factor_(factor) {}

    double factor() const { return factor_; }
    // Rounded; what no window could have is put to a limit that Qt can bear.
    int pixels(double twips) const;
    // Edges are rounded, not sizes, so that controls which touch in twips touch in pixels.
    QRect pixels(const Place& place) const;
    double twips(double pixels) const { return pixels * twipsinpixel / factor_; }
    // Of a length of our own that is `base` pixels at zoom 1.
    int length(double atzoom1) const;

    friend bool operator==(const Zoom&, const Zoom&) = default;

private:
    double factor_ = 1;
};

// The zoom of every window that is not maximised, and of tool tips and messages. Written by the host.
Zoom basezoom();
void setbasezoom(Zoom zoom);

// The zoom of the window that a widget is in; the base zoom outside the windows of screens.
Zoom zoomof(const QWidget& widget);

} // namespace brindor::toolkit::qt
