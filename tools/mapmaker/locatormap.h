#pragma once

#include "coastlines/coastlines.h"
#include "mapmaker/names.h"

#include <QColor>
#include <QImage>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace brindor::mapmaker {

inline constexpr std::size_t largestmap = 30 * 1024; // bytes

// Coasts and rivers. Plain ones make a smaller file.
enum class Lines { smooth, plain };

// What a map is about.
struct Subject {
    Position place;
    QString name;                     // of the place
    std::int64_t year = 0;            // tells which names of lands are written
    std::span<const Position> others; // the places of the timeline's events, with or without this one
};

// Draws the maps that show where an event happened.
class LocatorMaps {
public:
    LocatorMaps(World world, std::vector<PlaceName> names);

    // The region around a place, 640 x 480 pixels: a marker in the middle with the place's name, dots for the other
    // events, the names of some seas and lands, and a small map of the world in a corner.
    QImage draw(const Subject& subject, Lines lines) const;

    // The same as a PNG file of at most `largestmap` bytes, with smooth lines unless it would be too large. The same
    // subject gives the same bytes.
    std::string file(const Subject& subject) const;

private:
    World world_;
    std::vector<PlaceName> names_;
    QImage inset_;
};

} // namespace brindor::mapmaker
