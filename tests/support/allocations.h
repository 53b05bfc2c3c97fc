#pragma once

#include <cstdint>

namespace brindor::tests {

// How often the program has asked for memory with operator new so far. Only in programs that are built with
// allocations.cpp, which puts a counting one in its place.
extern std::int64_t allocations;

} // namespace brindor::tests
