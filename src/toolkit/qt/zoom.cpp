#include "toolkit/qt/zoom.h"

#include "toolkit/qt/screenwindow.h"

#include <algorithm>
#include <cmath>

namespace brindor::toolkit::qt {

namespace {

Zoom base;

} // namespace

int Zoom::pixels(double twips) const
{
    constexpr double limit = 30000;
    const double exact = twips / twipsinpixel * factor_;
    return std::isnan(exact) ? 0 : static_cast<int>(std::lround(std::clamp(exact, -limit, limit)));
}

QRect Zoom::pixels(const Place& place) const
{
    const int left = pixels(place.left);
    const int top = pixels(place.top);
    return {left, top, std::max(0, pixels(place.left + place.width) - left),
            std::max(0, pixels(place.top + place.height) - top)};
}

int Zoom::length(double atzoom1) const
{
    return static_cast<int>(std::lround(atzoom1 * factor_));
}

Zoom basezoom()
{
    return base;
}

void setbasezoom(Zoom zoom)
{
    base = zoom;
}

Zoom zoomof(const QWidget& widget)
{
    const auto* window = dynamic_cast<const ScreenWindow*>(widget.window());
    return window == nullptr ? base : window->zoom();
}

} // namespace brindor::toolkit::qt
