#include "mapmaker/framing.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace brindor::mapmaker {

namespace {

struct Region {
    double south;
    double north;
    double west;
    double east;
};

constexpr std::array<Region, 5> closeregions = {{{30, 46, -7, 37},     // the Mediterranean
                                                 {28, 42, 32, 53},     // the Near East
                                                 {42, 60, -11, 20},    // Western Europe
                                                 {30, 46, 128, 146},   // Japan
                                                 {26, 41, 103, 123}}}; // Central China

// The ninth nearest place, the own one counted, should stand some way inside the frame.
constexpr std::size_t company = 8;
constexpr double perdegree = 3;
constexpr double sameplace = 0.05; // degrees

} // namespace

double awayfrom(const Position& a, const Position& b)
{
    return std::acos(std::clamp(dot(vectorof(a), vectorof(b)), -1.0, 1.0)) * 180 / std::numbers::pi;
}

double frameangle(const Position& place, std::span<const Position> others)
{
    std::vector<double> distances;
    for (const Position& other : others) {
        const double distance = awayfrom(place, other);
        if (distance > sameplace) {
            distances.push_back(distance);
        }
    }
    std::sort(distances.begin(), distances.end());
    const double reach = distances.size() < company ? widestframe : distances[company - 1];
    const bool inclose = std::any_of(closeregions.begin(), closeregions.end(), [&](const Region& region) {
        return place.latitude >= region.south && place.latitude <= region.north && place.longitude >= region.west &&
               place.longitude <= region.east;
    });
    return std::clamp(perdegree * reach, narrowestframe, inclose ? middleframe : widestframe);
}

} // namespace brindor::mapmaker
