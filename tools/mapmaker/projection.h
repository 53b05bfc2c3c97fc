#pragma once

#include "coastlines/coastlines.h"

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <optional>

// From the globe to the plane.
namespace brindor::mapmaker {

enum class Islets { dots, omitted };

enum class Projection {
    equalarea,    // Lambert's azimuthal one, for maps of regions inside the disc
    stereographic // for hemispheres, whose edge is seen
};

// A look at the globe from straight above `centre`: a cap of the sphere around it, drawn as a disc. North is up at
// the centre; poles and the date line are points and lines like any other.
class View {
public:
    // `cap` in degrees from the centre, at most 90 for a stereographic view and below 180 for the other. `scale` is
    // in pixels for a radian at the centre, `middle` is the centre's place in pixels.
    View(Projection projection, const Position& centre, double cap, double scale, const QPointF& middle);

    double discradius() const;                     // pixels
    double pixelsperdegree() const;                // at the centre
    QPointF point(const Position& position) const; // one beyond the cap comes to the edge of the disc
    bool insees(const Position& position) const;
    std::optional<QPointF> seen(const Position& position) const; // the point of what the cap holds
    bool mayreach(const Position& middle, double reach) const;   // whether it may hold anything so many degrees about
    Position position(const QPointF& point) const;               // of a point on the disc

    // The land inside the cap, to be filled by the odd-even rule. Islands that would hardly be seen are drawn as dots
    // or left out.
    QPainterPath land(const Coastlines& coastlines, Islets islets) const;

    // Those pieces of rivers that lie inside the cap.
    QPainterPath rivers(const Coastlines& rivers) const;

    // Meridians and parallels at multiples of `step` degrees. Near the poles only every third meridian goes on.
    QPainterPath graticule(int step) const;

private:
    struct Local { // along east, north and up at the centre
        double east;
        double north;
        double up;
    };

    Local local(const Vector& vector) const;
    double stretch(double up) const; // of a local point, from the sphere to the plane
    QPointF onplane(const Local& point) const;
    QPointF onedge(double azimuth) const; // radians, from east to north
    void addring(QPainterPath& path, const Ring& ring) const;
    void addline(QPainterPath& path, const Position& from, const Position& to) const;

    Projection projection_;
    Vector east_;
    Vector north_;
    Vector up_;
    double cap_;   // radians
    double capup_; // cosine of it
    double scale_;
    QPointF middle_;
};

// The land of the whole world in a plain map with equal degrees, longitude -180 at the left edge of `frame`, to be
// filled by the odd-even rule and clipped to the frame.
QPainterPath worldland(const Coastlines& coastlines, const QRectF& frame);

// The place of a position in that map.
QPointF worldpoint(const Position& position, const QRectF& frame);

} // namespace brindor::mapmaker
