#pragma once

#include "toolkit/controls.h"

#include <QRect>

#include <algorithm>
#include <cmath>

namespace brindor::toolkit::qt {

inline constexpr double twipsinpixel = 15;

// Logical pixels, rounded; what no window could have is put to a limit that Qt can bear.
inline int pixels(double twips)
{
    constexpr double limit = 30000;
    return std::isnan(twips) ? 0 : static_cast<int>(std::lround(std::clamp(twips / twipsinpixel, -limit, limit)));
}

// Edges are rounded, not sizes, so that controls which touch in twips touch in pixels.
inline QRect pixels(const Place& place)
{
    const int left = pixels(place.left);
    const int top = pixels(place.top);
    return {left, top, std::max(0, pixels(place.left + place.width) - left),
            std::max(0, pixels(place.top + place.height) - top)};
}

} // namespace brindor::toolkit::qt
