#include "mapmaker/locatormap.h"

#include "authoring/pictures.h"
#include "mapmaker/projection.h"
#include "mapmaker/shallows.h"
#include "mapmaker/texts.h"

#include <QColor>
#include <QPainter>
#include <QPen>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

namespace brindor::mapmaker {

namespace {

constexpr int width = authoring::mapwidth;
constexpr int height = authoring::mapheight;
constexpr double frameangle = 60; // degrees that the width of a map shows
constexpr double capangle = 40;   // just beyond the corners of the frame

constexpr int worldwidth = 176;
constexpr int worldheight = 88;
constexpr int worldmargin = 12;

// Soft, as the screens that the player comes from.
const QColor sea(204, 238, 246);
const std::array<Shallows, 2> shallows = {{{4, QColor(166, 218, 236)}, {8, QColor(186, 229, 241)}}};
const QColor landcolour(236, 243, 200);
const QColor coast(116, 150, 122);
const QColor grid(160, 206, 222);
const QColor marker(255, 112, 0);
const QColor ink(60, 40, 24);
const QColor halo(255, 255, 240);

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

void drawinset(QPainter& painter, const QImage& world, const View& view, const Position& place)
{
    const QRectF box(worldmargin, height - worldmargin - worldheight, worldwidth, worldheight);
    painter.fillRect(box.adjusted(-4, -4, 4, 4), halo);
    painter.drawImage(box.topLeft(), world);
    painter.save();
    painter.setClipRect(box);
    painter.strokePath(framepath(view, box), pen(marker, 2));
    const QPointF at = worldpoint(place, box);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(at, 2, 2);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen(coast, 1));
    painter.drawRect(box.adjusted(-4, -4, 4, 4));
}

void drawmarker(QPainter& painter, const QPointF& at)
{
    painter.setPen(pen(halo, 3));
    painter.setBrush(marker);
    painter.drawEllipse(at, 9, 9);
    painter.setPen(pen(ink, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(at, 9, 9);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawEllipse(at, 2.5, 2.5);
}

void drawname(QPainter& painter, const QString& name, const QPointF& marked)
{
    constexpr double size = 30;
    constexpr double side = 24;
    const QPainterPath text = textpath(name, Face::sansbold, size, width - 2 * side, marked - QPointF(0, 32));
    painter.strokePath(text, pen(halo, 6));
    painter.fillPath(text, ink);
}

} // namespace

std::vector<QColor> mapcolours()
{
    return {sea, shallows[0].colour, shallows[1].colour, landcolour, coast, grid, marker, ink, halo};
}

LocatorMaps::LocatorMaps(Coastlines coastlines) : coastlines_(std::move(coastlines)), world_(drawworld(coastlines_)) {}

QImage LocatorMaps::draw(const Position& place, const QString& name) const
{
    const double halfway = 2 * std::sin(frameangle / 4 * std::numbers::pi / 180);
    const QPointF middle(width / 2.0, height / 2.0);
    const View view(Projection::equalarea, place, capangle, width / 2.0 / halfway, middle);
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(sea);
    QPainter painter(&image);
    const QPainterPath land = view.land(coastlines_, Islets::dots);
    painter.fillPath(land, landcolour);
    painter.end();
    shadewater(image, sea, shallows);
    painter.begin(&image);
    painter.strokePath(view.graticule(10), thinpen(grid)); // without smoothing, which would double the file's size
    painter.strokePath(land, thinpen(coast));
    painter.setRenderHint(QPainter::Antialiasing);
    drawinset(painter, world_, view, place);
    drawmarker(painter, middle);
    drawname(painter, name, middle);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen(coast, 3));
    painter.drawRect(QRectF(0, 0, width, height));
    return image;
}

} // namespace brindor::mapmaker
