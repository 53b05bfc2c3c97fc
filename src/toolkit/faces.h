#pragma once

#include "toolkit/controls.h"

#include <array>

namespace brindor::toolkit {

// The families of a typeface: the one that the screens are drawn for, and a free one of the same widths, for machines
// that lack it.
struct FaceFamilies {
    Face face;
    const char* wanted;
    const char* free;
};
inline constexpr std::array<FaceFamilies, 3> families = {{{Face::plain, "MS Sans Serif", "Liberation Sans"},
                                                          {Face::heading, "Arial", "Liberation Sans"},
                                                          {Face::reading, "MS Serif", "Liberation Serif"}}};

constexpr const FaceFamilies& familiesof(Face face)
{
    return families[static_cast<std::size_t>(face)];
}
static_assert(familiesof(Face::plain).face == Face::plain && familiesof(Face::heading).face == Face::heading &&
                  familiesof(Face::reading).face == Face::reading,
              "one row a typeface, in their order");

} // namespace brindor::toolkit
