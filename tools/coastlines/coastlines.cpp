#include "coastlines/coastlines.h"

#include "base/text.h"
#include "coastlines/builtin.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numbers>
#include <utility>

namespace brindor {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double earthradius = 6371; // kilometres
constexpr double unitsperdegree = 100;

double wrapped(double longitude)
{
    return std::remainder(longitude, 360.0);
}

// The numbers of one line; nothing where one of them is no whole number.
std::optional<std::vector<std::int64_t>> numbersof(std::string_view line)
{
    std::vector<std::int64_t> numbers;
    while (!line.empty()) {
        const std::size_t end = std::min(line.find(' '), line.size());
        const std::optional<std::int64_t> number = wholenumber(line.substr(0, end));
        if (!number) {
            return std::nullopt;
        }
        numbers.push_back(*number);
        line.remove_prefix(std::min(end + 1, line.size()));
    }
    return numbers;
}

Ring ringof(const std::vector<std::int64_t>& numbers)
{
    Ring ring;
    double longitude = 0;
    double latitude = 0;
    Vector sum;
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2) {
        longitude += static_cast<double>(numbers[i]);
        latitude += static_cast<double>(numbers[i + 1]);
        ring.positions.push_back({latitude / unitsperdegree, longitude / unitsperdegree});
        const Vector point = vectorof(ring.positions.back());
        ring.points.push_back(point);
        sum = {sum.x + point.x, sum.y + point.y, sum.z + point.z};
    }
    const double length = std::max(std::sqrt(dot(sum, sum)), 1e-9);
    ring.middle = {sum.x / length, sum.y / length, sum.z / length};
    for (const Vector& point : ring.points) {
        ring.radius = std::max(ring.radius, std::acos(std::clamp(dot(point, ring.middle), -1.0, 1.0)));
    }
    return ring;
}

Result<Coastlines> readlines(std::string_view text, std::size_t fewestpoints, const char* subject, const char* fault)
{
    Coastlines lines;
    std::int64_t line = 0;
    while (!text.empty()) {
        ++line;
        const std::size_t end = std::min(text.find('\n'), text.size());
        const auto numbers = numbersof(text.substr(0, end));
        if (!numbers || numbers->size() % 2 != 0 || numbers->size() < 2 * fewestpoints) {
            return {std::nullopt, std::string(subject) + ", line " + numbertext(line) + ": " + fault};
        }
        lines.push_back(ringof(*numbers));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return {std::move(lines), {}};
}

} // namespace

double dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector vectorof(const Position& position)
{
    const double latitude = position.latitude * degree;
    const double longitude = position.longitude * degree;
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude), std::sin(latitude)};
}

Position positionof(const Vector& vector)
{
    return {std::asin(std::clamp(vector.z, -1.0, 1.0)) / degree, std::atan2(vector.y, vector.x) / degree};
}

bool Ring::roundsapole() const
{
    return std::abs(positions.back().longitude - positions.front().longitude) > 180;
}

Result<Coastlines> readcoastlines(std::string_view text)
{
    return readlines(text, 3, "the coastlines", "this is no ring of points");
}

Result<Coastlines> readrivers(std::string_view text)
{
    return readlines(text, 2, "the rivers", "this is no line of points");
}

Result<World> readworld()
{
    Result<Coastlines> land = readcoastlines(builtin("land.txt"));
    Result<Coastlines> lakes = readcoastlines(builtin("lakes.txt"));
    Result<Coastlines> rivers = readrivers(builtin("rivers.txt"));
    if (!land || !lakes || !rivers) {
        return {std::nullopt, land.reason + lakes.reason + rivers.reason};
    }
    return {World{std::move(*land.value), std::move(*lakes.value), std::move(*rivers.value)}, {}};
}

// Counts how often the way from the position to the north pole crosses the ring. A point right north of the position
// has the same number for both lines that meet there, so it is counted once.
bool holds(const Ring& ring, const Position& position)
{
    bool inside = false;
    const std::size_t count = ring.positions.size();
    for (std::size_t i = 0; i < count; ++i) {
        const Position& from = ring.positions[i];
        const Position& to = ring.positions[(i + 1) % count];
        const double west = wrapped(from.longitude - position.longitude);
        const double east = wrapped(to.longitude - position.longitude);
        if ((west > 0) == (east > 0) || std::abs(west - east) > 180) {
            continue;
        }
        const double latitude = from.latitude + (to.latitude - from.latitude) * west / (west - east);
        inside = inside != (latitude > position.latitude);
    }
    return inside;
}

double distance(const Position& a, const Position& b)
{
    return earthradius * std::acos(std::clamp(dot(vectorof(a), vectorof(b)), -1.0, 1.0));
}

// The stretch between two points of a ring is short, so the plane that touches the globe at the position will do. Most
// rings are passed over by the cap that holds them.
double landdistance(const Coastlines& coastlines, const Position& position)
{
    const Vector point = vectorof(position);
    std::vector<double> beyond; // radians from the caps; below 0 inside
    bool onland = false;
    for (const Ring& ring : coastlines) {
        beyond.push_back(std::acos(std::clamp(dot(point, ring.middle), -1.0, 1.0)) - ring.radius);
        onland = onland != (beyond.back() <= 0 && holds(ring, position));
    }
    if (onland) {
        return 0;
    }
    const double narrow = std::cos(position.latitude * degree);
    double nearest = 180;
    for (std::size_t r = 0; r < coastlines.size(); ++r) {
        const std::vector<Position>& positions = coastlines[r].positions;
        for (std::size_t i = 0; i < positions.size() && beyond[r] < nearest * degree; ++i) {
            const Position& from = positions[i];
            const Position& to = positions[(i + 1) % positions.size()];
            const double x = wrapped(from.longitude - position.longitude) * narrow;
            const double y = from.latitude - position.latitude;
            const double dx = wrapped(to.longitude - from.longitude) * narrow;
            const double dy = to.latitude - from.latitude;
            const double length = std::max(dx * dx + dy * dy, 1e-12);
            const double along = std::clamp(-(x * dx + y * dy) / length, 0.0, 1.0);
            nearest = std::min(nearest, std::hypot(x + along * dx, y + along * dy));
        }
    }
    return nearest * degree * earthradius;
}

} // namespace brindor
