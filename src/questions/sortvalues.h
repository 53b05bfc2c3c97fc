#pragma once

#include <cstdint>

namespace brindor {

// The number by which an item is sorted: its first date; 0 for an item outside its family. A type whose items have
// no sort value shows a message and gives 0.
std::int32_t getsortval(std::int16_t item, std::int16_t type);

} // namespace brindor
