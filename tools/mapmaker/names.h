#pragma once

#include "base/result.h"
#include "coastlines/coastlines.h"

#include <QString>
#include <cstdint>
#include <string_view>
#include <vector>

// The names of seas, lands and islands, from data/coastlines.
namespace brindor::mapmaker {

enum class Feature {
    sea,   // written on water alone
    lake,  // beside its water
    land,  // on land
    island // beside it
};

// What bears a name fills an ellipse about `middle`.
struct PlaceName {
    QString text;
    Feature feature = Feature::sea;
    Position middle;
    double height = 0; // degrees of latitude, from end to end
    double width = 0;  // degrees of longitude
    std::int64_t from = 0;
    std::int64_t to = 0; // the years in which the name was used, both included
};

// Reads a table with the columns name, kind, latitude, longitude, height, width, from, to. An empty year is a name
// from ever or for ever. Fails on any other header, kind or number.
Result<std::vector<PlaceName>> readnames(std::string_view text);

// The names that are built into the program.
Result<std::vector<PlaceName>> worldnames();

} // namespace brindor::mapmaker
