#include "mapmaker/titlepicture.h"

#include "mapmaker/fonts.h"
#include "mapmaker/ornaments.h"
#include "mapmaker/projection.h"
#include "mapmaker/shallows.h"

#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QString>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

namespace brindor::mapmaker {

namespace {

constexpr int width = 960;
constexpr int height = 640;

const QRectF titlepanel(150, 36, 660, 116);
const QPointF rose(480, 222);
constexpr double globeradius = 164;
constexpr double globey = 338;
constexpr double westx = 280;
constexpr double eastx = 680;

const QColor paper(244, 228, 186);
const QColor ocean(226, 228, 204);
const std::array<Shallows, 3> shores = {
    {{2, QColor(176, 202, 190)}, {4.5, QColor(196, 213, 196)}, {8, QColor(212, 221, 201)}}};
const QColor country(240, 214, 152);
const QColor lines(150, 112, 70, 110);

struct Name {
    const char* text;
    Position at;
    double size;
};

// As the old maps write them.
constexpr std::array<Name, 4> westnames = {{{"Mare Pacificum", {-14, -132}, 14},
                                            {"America", {45, -101}, 14},
                                            {"Brasilia", {-9, -54}, 13},
                                            {"Oceanus", {31, -50}, 12}}};
constexpr std::array<Name, 6> eastnames = {{{"Africa", {12, 18}, 17},
                                            {"Europa", {51, 26}, 13},
                                            {"Asia", {48, 92}, 19},
                                            {"Oceanus Indicus", {-36, 77}, 13},
                                            {"Nova Hollandia", {-29, 134}, 8.5},
                                            {"Terra Australis", {-78, 70}, 11}}};

// A wash of colour over the land, strongest in the middle.
struct Tint {
    Position middle;
    double radius; // pixels
    QColor colour;
};

const std::array<Tint, 11> tints = {{{{50, -105}, 90, {150, 182, 120}},
                                     {{-15, -60}, 75, {224, 140, 110}},
                                     {{72, -42}, 34, {224, 140, 110}},
                                     {{66, -165}, 40, {224, 160, 90}},
                                     {{53, 15}, 52, {222, 128, 112}},
                                     {{5, 20}, 85, {160, 186, 116}},
                                     {{58, 95}, 95, {240, 196, 92}},
                                     {{24, 47}, 30, {224, 150, 92}},
                                     {{18, 82}, 45, {214, 128, 120}},
                                     {{-25, 134}, 50, {150, 182, 120}},
                                     {{-85, 70}, 70, {200, 196, 176}}}};

void drawtints(QPainter& painter, const View& view, const QPainterPath& land)
{
    painter.save();
    painter.setClipPath(land);
    painter.setPen(Qt::NoPen);
    for (const Tint& tint : tints) {
        if (!view.insees(tint.middle)) {
            continue;
        }
        QRadialGradient wash(view.point(tint.middle), tint.radius);
        QColor strong = tint.colour;
        strong.setAlpha(150);
        QColor none = tint.colour;
        none.setAlpha(0);
        wash.setColorAt(0, strong);
        wash.setColorAt(0.6, strong);
        wash.setColorAt(1, none);
        painter.setBrush(wash);
        painter.drawEllipse(view.point(tint.middle), tint.radius, tint.radius);
    }
    painter.restore();
}

void drawnames(QPainter& painter, const View& view, std::span<const Name> names)
{
    for (const Name& name : names) {
        const QPainterPath text =
            textpath(QString::fromLatin1(name.text), Face::serifitalic, name.size, width, view.point(name.at));
        painter.fillPath(text, sepia);
    }
}

// The circles that an old map of the world never lacks: the equator, the tropics and the polar circles.
void drawcircles(QPainter& painter, const View& view, double centre)
{
    constexpr std::array<double, 5> latitudes = {0, 23.5, -23.5, 66.5, -66.5};
    for (const double latitude : latitudes) {
        QPainterPath circle;
        for (int i = -89; i <= 89; ++i) {
            const QPointF at = view.point({latitude, centre + i});
            if (i == -89) {
                circle.moveTo(at);
            } else {
                circle.lineTo(at);
            }
        }
        QPen pen(carmine, latitude == 0 ? 1.2 : 0.8);
        if (latitude != 0) {
            pen.setDashPattern({5, 3});
        }
        painter.strokePath(circle, pen);
    }
}

void drawglobe(QPainter& painter, const Coastlines& coastlines, double centre, const QPointF& middle,
               std::span<const Name> names)
{
    // The inside is drawn on a sheet of its own, since the shores need plain water.
    constexpr int half = static_cast<int>(globeradius) + 2;
    const QPointF sheetmiddle(half, half);
    const View onsheet(Projection::stereographic, {0, centre}, 90, globeradius / 2, sheetmiddle);
    QImage sheet(2 * half, 2 * half, QImage::Format_RGB32);
    sheet.fill(ocean);
    const QPainterPath land = onsheet.land(coastlines, Islets::omitted);
    QPainter inside(&sheet);
    inside.setRenderHint(QPainter::Antialiasing);
    inside.fillPath(land, country);
    drawtints(inside, onsheet, land);
    inside.end();
    shadewater(sheet, ocean, shores);
    inside.begin(&sheet);
    inside.setRenderHint(QPainter::Antialiasing);
    inside.strokePath(onsheet.graticule(15), QPen(lines, 0.8));
    inside.strokePath(land, inkpen(0.9));
    drawcircles(inside, onsheet, centre);
    drawnames(inside, onsheet, names);
    inside.end();

    QPainterPath disc;
    disc.addEllipse(middle, globeradius, globeradius);
    painter.save();
    painter.setClipPath(disc);
    painter.drawImage(middle - sheetmiddle, sheet);
    painter.restore();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(vellum, 7));
    painter.drawEllipse(middle, globeradius + 4, globeradius + 4);
    QPen ladder(sepia, 4);
    ladder.setCapStyle(Qt::FlatCap);
    const double piece = 2 * std::numbers::pi * (globeradius + 4) / 72 / 4; // in widths of the pen: five degrees
    ladder.setDashPattern({piece, piece});
    painter.setPen(ladder);
    painter.drawEllipse(middle, globeradius + 4, globeradius + 4);
    for (const double edge : {0.0, 1.0, 7.0, 9.0}) {
        painter.setPen(inkpen(edge == 9.0 ? 1.6 : 0.9));
        painter.drawEllipse(middle, globeradius + edge, globeradius + edge);
    }
}

// The lines of the winds, from the rose to all sides.
void drawrhumblines(QPainter& painter)
{
    painter.setPen(QPen(lines, 0.7));
    for (int i = 0; i < 32; ++i) {
        const double angle = i * std::numbers::pi / 16;
        painter.drawLine(rose, rose + 1200 * QPointF(std::cos(angle), std::sin(angle)));
    }
}

// A number from -1 to 1 for each point of a grid, always the same.
double grain(int x, int y)
{
    std::uint32_t bits = static_cast<std::uint32_t>(x) * 0x9E3779B1U ^ static_cast<std::uint32_t>(y) * 0x85EBCA77U;
    bits = (bits ^ (bits >> 15U)) * 0x2C1B3C6DU;
    bits = (bits ^ (bits >> 12U)) * 0x297A2D39U;
    bits ^= bits >> 15U;
    return static_cast<double>(bits & 0xFFFFU) / 32767.5 - 1;
}

// The grain of a coarser grid, smoothly in between.
double mottling(double x, double y)
{
    const int left = static_cast<int>(std::floor(x));
    const int top = static_cast<int>(std::floor(y));
    const auto eased = [](double part) { return part * part * (3 - 2 * part); };
    const double across = eased(x - left);
    const double down = eased(y - top);
    const double above = std::lerp(grain(left, top), grain(left + 1, top), across);
    const double below = std::lerp(grain(left, top + 1), grain(left + 1, top + 1), across);
    return std::lerp(above, below, down);
}

// Makes everything look printed on old paper: fibres, stains and edges that have gone brown.
void age(QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const double edge = std::min({x, y, image.width() - 1 - x, image.height() - 1 - y}) / 90.0;
            const double browned = 0.16 * std::pow(1 - std::min(edge, 1.0), 2);
            const double stains = 0.030 * mottling(x / 97.0, y / 97.0) + 0.018 * mottling(x / 29.0 + 50, y / 29.0) +
                                  0.010 * mottling(x / 5.0, y / 2.0 + 90) + 0.006 * grain(x, y);
            const double light = 1 - browned + stains;
            const auto shade = [&](int value, double stronger) {
                return static_cast<int>(std::clamp(std::lround(value * (1 - (1 - light) * stronger)), 0L, 255L));
            };
            line[x] = qRgb(shade(qRed(line[x]), 0.8), shade(qGreen(line[x]), 1.1), shade(qBlue(line[x]), 1.7));
        }
    }
}

} // namespace

QImage titlepicture(const Coastlines& coastlines)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(paper);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    drawrhumblines(painter);
    drawglobe(painter, coastlines, -110, {westx, globey}, westnames);
    drawglobe(painter, coastlines, 70, {eastx, globey}, eastnames);
    drawcompassrose(painter, rose, 50);
    drawcartouche(painter, titlepanel);
    drawsun(painter, {76, 216}, 34);
    drawmoon(painter, {884, 216}, 36);
    drawship(painter, {74, 462}, 92);
    drawserpent(painter, {886, 468}, 70);
    drawship(painter, {190, 286}, 34);
    drawserpent(painter, {236, 436}, 34);
    drawneatline(painter, QRectF(6.5, 6.5, width - 13, height - 13), 8, 24);
    painter.end();
    age(image);
    return image;
}

} // namespace brindor::mapmaker
