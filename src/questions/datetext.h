#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brindor {

// The date text of an item of the current family: "ca. 1200 to 1250", with `word` between two different dates. A
// date kind outside 0 to 2, which only a hand-made file can hold, gives no text for its date.
std::string datetext(std::int16_t item, std::string_view word);

// The nation of an event, or its two nations joined by ", ". Two different indices give two names, even equal ones.
std::string nationtext(std::int16_t item);

} // namespace brindor
