#include "mapmaker/locatormap.h"

#include "authoring/eventpictures.h"
#include "mapmaker/fonts.h"
#include "mapmaker/framing.h"
#include "mapmaker/lettering.h"
#include "mapmaker/picturefile.h"
#include "mapmaker/projection.h"
#include "mapmaker/shallows.h"

#include <QColor>
#include <QLineF>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace brindor::mapmaker {

namespace {

constexpr int width = authoring::mapwidth;
constexpr int height = authoring::mapheight;
constexpr double tocorner = 0.65; // of the frame's angle, from its middle to just beyond its corners

constexpr int worldwidth = 176;
constexpr int worldheight = 88;
constexpr int worldmargin = 12;

// Soft, as the screens that the player comes from; what carries meaning stands out from both land and sea.
const QColor sea(204, 238, 246);
const std::array<Shallows, 2> shallows = {{{4, QColor(166, 218, 236)}, {8, QColor(186, 229, 241)}}};
const QColor landcolour(236, 243, 200);
const QColor coast(96, 134, 108);
const QColor river(112, 178, 208);
const QColor grid(178, 216, 226);
const QColor marker(206, 60, 0);
const QColor ink(60, 40, 24);
const QColor halo(255, 255, 240);
const QColor faint(168, 128, 96); // the dots of other events
const QColor landname(104, 78, 48);
const QColor seaname(44, 96, 138);

QPen pen(const QColor& colour, double thickness)
{
    return {colour, thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

// Thin lines go through Qt's quick way for lines, which is ten times as fast as stroking an outline.
QPen thinpen(const QColor& colour)
{
    QPen thin(colour, 1);
    thin.setCosmetic(true);
    return thin;
}

QImage drawworld(const Coastlines& coastlines)
{
    QImage image(worldwidth, worldheight, QImage::Format_RGB32);
    image.fill(sea);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = worldland(coastlines, QRectF(0, 0, worldwidth, worldheight));
    painter.fillPath(path, landcolour.darker(112));
    return image;
}

// The edge of the map's frame on the map of the world; it breaks where it leaves the world at one side and comes in
// at the other.
QPainterPath framepath(const View& view, const QRectF& world)
{
    constexpr int pieces = 40; // a side
    const QRectF frame(0, 0, width, height);
    const QPointF corners[] = {frame.topLeft(), frame.topRight(), frame.bottomRight(), frame.bottomLeft(),
                               frame.topLeft()};
    QPainterPath path;
    bool drawing = false;
    for (int side = 0; side < 4; ++side) {
        for (int i = 0; i <= pieces; ++i) {
            const QPointF at = corners[side] + (corners[side + 1] - corners[side]) * i / pieces;
            const QPointF next = worldpoint(view.position(at), world);
            drawing = drawing && std::abs(next.x() - path.currentPosition().x()) < world.width() / 2;
            if (drawing) {
                path.lineTo(next);
            } else {
                path.moveTo(next);
            }
            drawing = true;
        }
    }
    return path;
}

void drawinset(QPainter& painter, const QImage& world, const QRect& where, const View& view, const Position& place)
{
    const QRectF box = QRectF(where).adjusted(4, 4, -4, -4);
    painter.fillRect(where, halo);
    painter.drawImage(box.topLeft(), world);
    painter.save();
    painter.setClipRect(box);
    painter.strokePath(framepath(view, box), pen(marker, 1.5));
    const QPointF at = worldpoint(place, box);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(at, 1.5, 1.5);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen(coast, 1));
    painter.drawRect(where);
}

// A ring, so that the shore on which something happened is seen inside it.
void drawmarker(QPainter& painter, const QPointF& at)
{
    constexpr double radius = 9;
    painter.setBrush(Qt::NoBrush);
    for (const QPen& ring : {pen(halo, 5), pen(marker, 2.5)}) {
        painter.setPen(ring);
        painter.drawEllipse(at, radius, radius);
    }
    painter.setPen(pen(halo, 1));
    painter.setBrush(marker);
    painter.drawEllipse(at, 3, 3);
}

void drawdots(QPainter& painter, const std::vector<QPointF>& dots)
{
    constexpr double radius = 2.5;
    painter.setPen(Qt::NoPen);
    painter.setBrush(faint);
    for (const QPointF& at : dots) {
        painter.drawEllipse(at, radius, radius);
    }
}

// The places of the other events in the frame, but those that the marker stands on; one for each place.
std::vector<QPointF> dotsof(const View& view, const Subject& subject)
{
    constexpr double own = 4; // pixels
    std::vector<QPointF> dots;
    for (const Position& other : subject.others) {
        const QPointF at = view.point(other);
        const bool inside = view.insees(other) && QRectF(0, 0, width, height).contains(at);
        const bool again = std::find(dots.begin(), dots.end(), at) != dots.end();
        if (inside && !again && QLineF(at, view.point(subject.place)).length() > own) {
            dots.push_back(at);
        }
    }
    return dots;
}

// The colours that must come through whole.
std::vector<QColor> mapcolours()
{
    return {sea,
            shallows[0].colour,
            shallows[1].colour,
            landcolour,
            coast,
            river,
            grid,
            marker,
            ink,
            halo,
            faint,
            landname,
            seaname};
}

} // namespace

LocatorMaps::LocatorMaps(World world, std::vector<PlaceName> names)
    : world_(std::move(world)), names_(std::move(names)), inset_(drawworld(world_.land))
{
}

QImage LocatorMaps::draw(const Subject& subject, Lines lines) const
{
    const double angle = frameangle(subject.place, subject.others);
    const double halfway = 2 * std::sin(angle / 4 * std::numbers::pi / 180);
    const QPointF middle(width / 2.0, height / 2.0);
    const View view(Projection::equalarea, subject.place, angle * tocorner, width / 2.0 / halfway, middle);
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(sea);
    QPainter painter(&image);
    const QPainterPath land = view.land(world_.land, Islets::dots);
    const QPainterPath lakes = view.land(world_.lakes, Islets::omitted);
    painter.fillPath(land, landcolour);
    painter.fillPath(lakes, sea);
    painter.end();
    const Ground ground(image, sea);
    shadewater(image, sea, shallows);

    const std::vector<QPointF> dots = dotsof(view, subject);
    Lettering lettering(image.size(), ground, dots, middle);
    const QPainterPath label = lettering.label(subject.name);
    const QRect inset = lettering.corner({worldwidth + 8, worldheight + 8}, worldmargin - 4);
    const std::vector<Lettering::Written> names = lettering.names(view, names_, subject.year, subject.name);

    painter.begin(&image);
    painter.strokePath(view.graticule(angle > middleframe ? 10 : 5), thinpen(grid));
    painter.setRenderHint(QPainter::Antialiasing, lines == Lines::smooth);
    painter.save();
    painter.setClipPath(land);
    painter.strokePath(view.rivers(world_.rivers), thinpen(river));
    painter.restore();
    painter.fillPath(lakes, shallows[0].colour);
    painter.strokePath(lakes, thinpen(river));
    painter.strokePath(land, thinpen(coast));
    painter.setRenderHint(QPainter::Antialiasing);
    drawdots(painter, dots);
    for (const Lettering::Written& name : names) {
        const bool onwater = name.name->feature == Feature::sea || name.name->feature == Feature::lake;
        painter.fillPath(name.path, onwater ? seaname : landname);
    }
    drawinset(painter, inset_, inset, view, subject.place);
    drawmarker(painter, middle);
    painter.strokePath(label, pen(halo, 6));
    painter.fillPath(label, ink);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen(coast, 3));
    painter.drawRect(QRectF(0, 0, width, height));
    return image;
}

std::string LocatorMaps::file(const Subject& subject) const
{
    std::string bytes = pngbytes(draw(subject, Lines::smooth), mapcolours(), largestmap, Colours::all);
    if (bytes.size() > largestmap) {
        bytes = pngbytes(draw(subject, Lines::plain), mapcolours(), largestmap, Colours::fewer);
    }
    return bytes;
}

} // namespace brindor::mapmaker
