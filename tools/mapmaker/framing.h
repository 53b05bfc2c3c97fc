#pragma once

#include "coastlines/coastlines.h"

#include <span>

// How much of the world a map shows.
namespace brindor::mapmaker {

inline constexpr double narrowestframe = 18; // degrees that the width of a map shows
inline constexpr double middleframe = 24;
inline constexpr double widestframe = 60;

// Degrees between two places.
double awayfrom(const Position& a, const Position& b);

// The angle for a map of `place`: narrow where other events lie close, and never above the middle one in the parts of
// the world where much of history was made. `others` are the places of the timeline's events, this one among them.
double frameangle(const Position& place, std::span<const Position> others);

} // namespace brindor::mapmaker
