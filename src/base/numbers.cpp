#include "base/numbers.h"

#include <algorithm>
#include <cmath>

namespace brindor {

double roundtoeven(double number)
{
    const double below = std::floor(number);
    const double rest = number - below;
    if (rest < 0.5) {
        return below;
    }
    if (rest > 0.5) {
        return below + 1;
    }
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

std::int16_t roundtoint16(double number)
{
    if (std::isnan(number)) {
        return 0;
    }
    return static_cast<std::int16_t>(
        std::clamp(roundtoeven(number), static_cast<double>(lowest16), static_cast<double>(highest16)));
}

std::int16_t clampvalue(std::int16_t value, double low, double high)
{
    if (value < low) {
        value = roundtoint16(low);
    }
    if (value > high) {
        value = roundtoint16(high);
    }
    return value;
}

std::int16_t index16(std::int64_t number)
{
    return static_cast<std::int16_t>(std::clamp<std::int64_t>(number, lowest16, highest16));
}

std::int16_t add16(std::int16_t a, std::int16_t b)
{
    return index16(std::int64_t{a} + b);
}

} // namespace brindor
