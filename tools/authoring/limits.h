#pragma once

#include <cstddef>

// What fits on the screens at their default sizes, in characters, and what a good timeline keeps to.
namespace brindor::authoring {

inline constexpr std::size_t longestpersonname = 40;
inline constexpr std::size_t longesteventname = 60;
inline constexpr std::size_t longestdescription = 60;
inline constexpr std::size_t longestentry = 30; // of a faction, occupation, group or nation

} // namespace brindor::authoring
