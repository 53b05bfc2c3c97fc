#pragma once

#include <cstdint>

namespace brindor {

// The number by which an item is sorted: its first date. A type other than 1, 6, 7 and 13 shows a message and
// gives 0.
std::int32_t getsortval(std::int16_t item, std::int16_t type);

// Adds `delta` to the used mark of an item of the current family; a mark never goes below 0 nor above 32767.
void markused(std::int16_t item, std::int16_t delta);

} // namespace brindor
