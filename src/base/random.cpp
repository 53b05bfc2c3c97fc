#include "base/random.h"

#include "base/numbers.h"

#include <cmath>
#include <random>

namespace brindor {

namespace {
std::mt19937_64 generator;
}

void seedrandom(std::uint64_t seed)
{
    generator.seed(seed);
}

double randomvalue()
{
    constexpr int unusedbits = 64 - 53; // a double holds 53 bits
    return std::ldexp(static_cast<double>(generator() >> unusedbits), -53);
}

std::int16_t drawbelow(std::int16_t n)
{
    return n < 1 ? std::int16_t{0} : index16(static_cast<std::int64_t>(randomvalue() * n));
}

} // namespace brindor
