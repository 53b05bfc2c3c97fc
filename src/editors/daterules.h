#pragma once

#include <string>

// What becomes of the text of a date field when the field loses the focus. Bad text is replaced without a message.
namespace brindor {

inline constexpr double lowestdate = -20000; // the entry range
inline constexpr double highestdate = 10000;

struct DateRules {
    std::string (*date1)(const std::string& date1);
    std::string (*date2)(const std::string& date1, const std::string& date2);
};

// The person editor keeps a fraction until a store rounds it; a second date below the first becomes a copy of the
// first's text; the second date has a lower limit of its own.
extern const DateRules persondates;

// The event editor rounds at once; a second date below the first rises to the first, rounded; it has no other lower
// limit.
extern const DateRules eventdates;

} // namespace brindor
