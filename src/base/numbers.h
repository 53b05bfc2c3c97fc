#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// The named ways in which a number gets into 16 bits. Nothing else narrows a number.
namespace brindor {

inline constexpr std::int16_t lowest16 = -32768;
inline constexpr std::int16_t highest16 = 32767;

// Nothing where the number lies outside 16 bits; a failure text then says that it "is outside -32768 to 32767".
inline std::optional<std::int16_t> toint16(std::int64_t number)
{
    return number < lowest16 || number > highest16 ? std::nullopt : std::optional(static_cast<std::int16_t>(number));
}
inline constexpr std::string_view outside16 = "is outside -32768 to 32767";

// The nearest whole number, a half to the even neighbour.
double roundtoeven(double number);

// As roundtoeven, then put into 16 bits at the nearer limit; 0 for what is not a number.
std::int16_t roundtoint16(double number);

// `value` limited to two bounds, the low one tested first: a `low` above `high` gives `high`. A bound with a
// fraction is rounded to 16 bits, a half to the even neighbour, when it replaces the value.
std::int16_t clampvalue(std::int16_t value, double low, double high);

// For numbers that are known to fit, such as an index below a 16-bit count. One that does not is put to the nearer
// limit.
std::int16_t index16(std::int64_t number);

// a + b, stopping at the limits of 16 bits.
std::int16_t add16(std::int16_t a, std::int16_t b);

} // namespace brindor
