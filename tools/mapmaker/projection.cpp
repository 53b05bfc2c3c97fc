#include "mapmaker/projection.h"

#include <QLineF>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace brindor::mapmaker {

namespace {

constexpr double degree = std::numbers::pi / 180;
constexpr double shortest = 2;      // pixels; what is finer than that only makes the files larger
constexpr double isletradius = 1.4; // pixels
constexpr double brook = 12;        // the same of a river that is not worth its bytes

double wrappedazimuth(double azimuth)
{
    return std::remainder(azimuth, 2 * std::numbers::pi);
}

} // namespace

View::View(Projection projection, const Position& centre, double cap, double scale, const QPointF& middle)
    : projection_(projection), up_(vectorof(centre)), cap_(cap * degree), capup_(std::cos(cap * degree)), scale_(scale),
      middle_(middle)
{
    const double longitude = centre.longitude * degree;
    east_ = {-std::sin(longitude), std::cos(longitude), 0};
    north_ = {up_.y * east_.z - up_.z * east_.y, up_.z * east_.x - up_.x * east_.z, up_.x * east_.y - up_.y * east_.x};
}

double View::discradius() const
{
    return scale_ * stretch(capup_) * std::sin(cap_);
}

double View::pixelsperdegree() const
{
    return scale_ * degree;
}

View::Local View::local(const Vector& vector) const
{
    return {dot(vector, east_), dot(vector, north_), dot(vector, up_)};
}

double View::stretch(double up) const
{
    return projection_ == Projection::equalarea ? std::sqrt(2 / (1 + up)) : 2 / (1 + up);
}

QPointF View::onplane(const Local& point) const
{
    if (point.up <= capup_) {
        return onedge(std::atan2(point.north, point.east));
    }
    const double factor = scale_ * stretch(point.up);
    return middle_ + QPointF(point.east * factor, -point.north * factor);
}

QPointF View::onedge(double azimuth) const
{
    return middle_ + discradius() * QPointF(std::cos(azimuth), -std::sin(azimuth));
}

QPointF View::point(const Position& position) const
{
    return onplane(local(vectorof(position)));
}

bool View::insees(const Position& position) const
{
    return local(vectorof(position)).up > capup_;
}

std::optional<QPointF> View::seen(const Position& position) const
{
    const Local at = local(vectorof(position));
    return at.up > capup_ ? std::optional(onplane(at)) : std::nullopt;
}

bool View::mayreach(const Position& middle, double reach) const
{
    const double away = std::acos(std::clamp(dot(vectorof(middle), up_), -1.0, 1.0));
    return away - reach * degree < cap_;
}

Position View::position(const QPointF& point) const
{
    const QPointF offset = (point - middle_) / scale_;
    const double distance = std::hypot(offset.x(), offset.y());
    const double angle =
        projection_ == Projection::equalarea ? 2 * std::asin(std::min(distance / 2, 1.0)) : 2 * std::atan(distance / 2);
    const double side = distance > 0 ? std::sin(angle) / distance : 0;
    const double east = offset.x() * side;
    const double north = -offset.y() * side;
    const double up = std::cos(angle);
    return positionof({east * east_.x + north * north_.x + up * up_.x, east * east_.y + north * north_.y + up * up_.y,
                       east * east_.z + north * north_.z + up * up_.z});
}

// What lies beyond the cap runs along the edge of the disc, always the shorter way round. Where the disc is larger than
// the picture, the path follows only when the ring comes back: to and fro out there would be most of its points.
void View::addring(QPainterPath& path, const Ring& ring) const
{
    const auto azimuth = [](const Local& point) { return std::atan2(point.north, point.east); };
    const auto crossing = [this](const Local& a, const Local& b) {
        const double part = (capup_ - a.up) / (b.up - a.up);
        return Local{a.east + part * (b.east - a.east), a.north + part * (b.north - a.north), capup_};
    };
    Local before = local(ring.points.back());
    path.moveTo(onplane(before));
    double left = azimuth(before); // where the path is on the edge, once it has come there
    double way = 0;                // from there along the edge
    const auto follow = [&] {
        constexpr double step = 5 * degree;
        for (double gone = step; gone < std::abs(way); gone += step) {
            path.lineTo(onedge(left + std::copysign(gone, way)));
        }
        left += std::exchange(way, 0);
        path.lineTo(onedge(left));
    };
    const auto move = [&](const Local& point) {
        way += wrappedazimuth(azimuth(point) - left - way);
        if (projection_ == Projection::stereographic) {
            follow();
        }
    };
    for (const Vector& point : ring.points) {
        const Local next = local(point);
        const bool wasin = before.up > capup_;
        const bool isin = next.up > capup_;
        if (wasin && isin) {
            const QPointF place = onplane(next);
            if (QLineF(path.currentPosition(), place).length() > shortest) {
                path.lineTo(place);
            }
        } else if (wasin) {
            left = azimuth(crossing(before, next));
            way = 0;
            path.lineTo(onedge(left));
            move(next);
        } else if (isin) {
            move(crossing(before, next));
            follow();
            path.lineTo(onplane(next));
        } else {
            move(next);
        }
        before = next;
    }
    if (before.up <= capup_) {
        follow();
    }
    path.closeSubpath();
}

// A ring round the point opposite the centre runs once round the whole edge, whichever side of it is land. The edge
// is added once more where that point is land, which puts sea and land right again.
QPainterPath View::land(const Coastlines& coastlines, Islets islets) const
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    const Position opposite = positionof({-up_.x, -up_.y, -up_.z});
    bool landopposite = false;
    for (const Ring& ring : coastlines) {
        const double away = std::acos(std::clamp(dot(ring.middle, up_), -1.0, 1.0));
        if (away - ring.radius > cap_) {
            continue;
        }
        if (ring.radius * scale_ < isletradius) {
            if (islets == Islets::dots) {
                path.addEllipse(onplane(local(ring.middle)), isletradius, isletradius);
            }
            continue;
        }
        addring(path, ring);
        landopposite = landopposite != holds(ring, opposite);
    }
    if (landopposite) {
        path.addEllipse(middle_, discradius(), discradius());
    }
    return path;
}

QPainterPath View::rivers(const Coastlines& rivers) const
{
    QPainterPath path;
    for (const Ring& river : rivers) {
        const double away = std::acos(std::clamp(dot(river.middle, up_), -1.0, 1.0));
        if (away - river.radius > cap_ || river.radius * scale_ < brook) {
            continue;
        }
        bool drawing = false;
        for (const Vector& point : river.points) {
            const Local next = local(point);
            if (next.up <= capup_) {
                drawing = false;
            } else if (!drawing) {
                path.moveTo(onplane(next));
                drawing = true;
            } else if (QLineF(path.currentPosition(), onplane(next)).length() > shortest ||
                       &point == &river.points.back()) {
                path.lineTo(onplane(next));
            }
        }
    }
    return path;
}

void View::addline(QPainterPath& path, const Position& from, const Position& to) const
{
    constexpr int pieces = 90;
    bool drawing = false;
    for (int i = 0; i <= pieces; ++i) {
        const double part = static_cast<double>(i) / pieces;
        const Position at{from.latitude + part * (to.latitude - from.latitude),
                          from.longitude + part * (to.longitude - from.longitude)};
        const std::optional<QPointF> place = seen(at);
        if (place && drawing) {
            path.lineTo(*place);
        } else if (place) {
            path.moveTo(*place);
        }
        drawing = place.has_value();
    }
}

QPainterPath View::graticule(int step) const
{
    const double lastparallel = 90 - 2 * step;
    QPainterPath path;
    for (int longitude = -180; longitude < 180; longitude += step) {
        const double end = longitude % (3 * step) == 0 ? 90 : lastparallel;
        addline(path, {-end, static_cast<double>(longitude)}, {end, static_cast<double>(longitude)});
    }
    for (int latitude = -90 + step; latitude < 90; latitude += step) {
        for (int longitude = -180; longitude < 180; longitude += 90) {
            addline(path, {static_cast<double>(latitude), static_cast<double>(longitude)},
                    {static_cast<double>(latitude), static_cast<double>(longitude) + 90});
        }
    }
    return path;
}

QPainterPath worldland(const Coastlines& coastlines, const QRectF& frame)
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const Ring& ring : coastlines) {
        for (const double shift : {-360.0, 0.0, 360.0}) {
            const auto place = [&](const Position& at) {
                return worldpoint({at.latitude, at.longitude + shift}, frame);
            };
            path.moveTo(place(ring.positions.front()));
            for (const Position& at : ring.positions) {
                path.lineTo(place(at));
            }
            if (ring.roundsapole()) {
                path.lineTo(place({-90, ring.positions.back().longitude}));
                path.lineTo(place({-90, ring.positions.front().longitude}));
            }
            path.closeSubpath();
        }
    }
    return path;
}

QPointF worldpoint(const Position& position, const QRectF& frame)
{
    return {frame.left() + (position.longitude + 180) / 360 * frame.width(),
            frame.top() + (90 - position.latitude) / 180 * frame.height()};
}

} // namespace brindor::mapmaker
