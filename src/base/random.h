#pragma once

#include <cstdint>

// The program's one random generator. Seeded once at start; the tests seed it with a number of their own.
namespace brindor {

void seedrandom(std::uint64_t seed);

// A fresh uniform number r with 0 <= r < 1.
double randomvalue();

// floor(r x n), a whole number from 0 to n - 1; 0 where n is below 1.
std::int16_t drawbelow(std::int16_t n);

} // namespace brindor
