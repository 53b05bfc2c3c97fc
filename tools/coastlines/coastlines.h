#pragma once

#include "base/result.h"

#include <string_view>
#include <vector>

// The coastlines, lakes and rivers of the world, from data/coastlines.
namespace brindor {

// A point of the unit sphere: x to latitude and longitude 0, y to longitude 90 east, z to the north pole.
struct Vector {
    double x = 0;
    double y = 0;
    double z = 0;
};

double dot(const Vector& a, const Vector& b);

// Degrees, south and west negative. A longitude may lie outside -180 to 180.
struct Position {
    double latitude = 0;
    double longitude = 0;
};

Vector vectorof(const Position& position);
Position positionof(const Vector& vector);

// A closed line between land and water, or a river, which is open. The longitudes run on over the date line, so one
// ring, that of Antarctica, ends 360 degrees from its start.
struct Ring {
    std::vector<Position> positions; // the first is not repeated at the end
    std::vector<Vector> points;      // the same on the sphere
    Vector middle;                   // with the radius, a cap of the sphere that holds the ring
    double radius = 0;               // radians

    bool roundsapole() const;
};

using Coastlines = std::vector<Ring>;

// What the maps show of the world. The lakes lie on land, and an odd number of rings holds their water.
struct World {
    Coastlines land;
    Coastlines lakes;
    Coastlines rivers;
};

// Reads the text of the coastline file: a ring a line, in hundredths of a degree, longitude before latitude, each
// point but the first as the difference from the one before. Fails on anything else.
Result<Coastlines> readcoastlines(std::string_view text);

// The same for rivers, which have two points and more.
Result<Coastlines> readrivers(std::string_view text);

// The world that is built into the program.
Result<World> readworld();

// Whether the ring's land side holds the position. The north pole is sea.
bool holds(const Ring& ring, const Position& position);

// Kilometres between two positions on the globe.
double distance(const Position& a, const Position& b);

// Kilometres from a position to the nearest coast; 0 on land.
double landdistance(const Coastlines& coastlines, const Position& position);

} // namespace brindor
