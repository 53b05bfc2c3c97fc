#include "mapmaker/ornaments.h"

#include <QPainterPath>
#include <QPen>
#include <QPolygonF>
#include <array>
#include <cmath>
#include <numbers>

namespace brindor::mapmaker {

const QColor sepia(84, 52, 24);
const QColor vellum(253, 245, 220);
const QColor carmine(176, 74, 52);
const QColor ochre(222, 172, 84);
const QColor verdigris(126, 158, 128);

namespace {

constexpr double fullturn = 2 * std::numbers::pi;

QPointF onarc(const QPointF& middle, double radius, double turn)
{
    return middle + radius * QPointF(std::sin(turn * fullturn), -std::cos(turn * fullturn));
}

// Ornaments with shapes of their own are drawn in a square from -50 to 50.
class Placed {
public:
    Placed(QPainter& painter, const QPointF& middle, double size) : painter_(painter)
    {
        painter_.save();
        painter_.translate(middle);
        painter_.scale(size / 100, size / 100);
    }
    ~Placed() { painter_.restore(); }
    Placed(const Placed&) = delete;
    Placed& operator=(const Placed&) = delete;

private:
    QPainter& painter_;
};

void drawshape(QPainter& painter, const QPainterPath& path, const QColor& fill, double thickness)
{
    painter.setBrush(fill);
    painter.setPen(inkpen(thickness));
    painter.drawPath(path);
}

// A point of the rose: one half light, one half dark, which makes it look raised.
void drawpoint(QPainter& painter, const QPointF& middle, double turn, double length, double waist, const QColor& dark)
{
    const QPointF tip = onarc(middle, length, turn);
    for (const double side : {-1.0, 1.0}) {
        const QPolygonF half({middle, onarc(middle, waist, turn + side / 16), tip});
        painter.setBrush(side < 0 ? vellum : dark);
        painter.setPen(inkpen(0.8));
        painter.drawPolygon(half);
    }
}

void drawwaves(QPainter& painter, double left, double right, double y)
{
    constexpr double length = 12;
    QPainterPath waves;
    waves.moveTo(left, y);
    for (double x = left; x < right; x += length) {
        waves.quadTo(x + length / 2, y - 5, x + length, y);
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(inkpen(1.4));
    painter.drawPath(waves);
}

QPainterPath sail(double left, double right, double top, double bottom)
{
    constexpr double belly = 6;
    QPainterPath path;
    path.moveTo(left, top);
    path.lineTo(right, top);
    path.quadTo(right + belly, (top + bottom) / 2, right + 1, bottom);
    path.quadTo((left + right) / 2 + belly / 2, bottom - 3, left - 1, bottom);
    path.quadTo(left + belly, (top + bottom) / 2, left, top);
    return path;
}

QPainterPath flag(double x, double y)
{
    QPainterPath path;
    path.moveTo(x, y);
    path.quadTo(x + 6, y - 3, x + 14, y + 2);
    path.quadTo(x + 6, y + 3, x, y + 5);
    path.closeSubpath();
    return path;
}

} // namespace

QPen inkpen(double thickness)
{
    return {sepia, thickness, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void drawcompassrose(QPainter& painter, const QPointF& middle, double radius)
{
    painter.setBrush(Qt::NoBrush);
    for (const double ring : {0.62, 0.66}) {
        painter.setPen(inkpen(0.8));
        painter.drawEllipse(middle, radius * ring, radius * ring);
    }
    for (int i = 0; i < 16; ++i) {
        if (i % 2 == 1) {
            drawpoint(painter, middle, i / 16.0, radius * 0.6, radius * 0.12, ochre);
        }
    }
    for (int i = 0; i < 8; ++i) {
        if (i % 2 == 1) {
            drawpoint(painter, middle, i / 8.0, radius * 0.74, radius * 0.15, verdigris);
        }
    }
    for (int i = 0; i < 4; ++i) {
        drawpoint(painter, middle, i / 4.0, radius * 0.9, radius * 0.18, carmine);
    }
    // The lily that points north.
    const QPointF tip = onarc(middle, radius * 1.12, 0);
    const double petal = radius * 0.1;
    QPainterPath lily;
    lily.moveTo(tip);
    lily.quadTo(tip + QPointF(petal, petal * 1.4), tip + QPointF(0, petal * 2.4));
    lily.quadTo(tip + QPointF(-petal, petal * 1.4), tip);
    lily.moveTo(tip + QPointF(0, petal * 2.2));
    lily.cubicTo(tip + QPointF(petal, petal), tip + QPointF(petal * 2.2, petal * 1.2),
                 tip + QPointF(petal * 1.6, petal * 2.2));
    lily.moveTo(tip + QPointF(0, petal * 2.2));
    lily.cubicTo(tip + QPointF(-petal, petal), tip + QPointF(-petal * 2.2, petal * 1.2),
                 tip + QPointF(-petal * 1.6, petal * 2.2));
    painter.strokePath(lily, inkpen(1.4));
    painter.setBrush(vellum);
    painter.setPen(inkpen(1));
    painter.drawEllipse(middle, radius * 0.07, radius * 0.07);
}

void drawsun(QPainter& painter, const QPointF& middle, double radius)
{
    constexpr int rays = 16;
    for (int i = 0; i < rays; ++i) {
        const double turn = static_cast<double>(i) / rays;
        const double half = 0.4 / rays;
        const QPointF left = onarc(middle, radius * 0.62, turn - half);
        const QPointF right = onarc(middle, radius * 0.62, turn + half);
        QPainterPath ray;
        ray.moveTo(left);
        if (i % 2 == 0) {
            ray.lineTo(onarc(middle, radius * 1.15, turn));
        } else {
            ray.cubicTo(onarc(middle, radius * 0.8, turn + half), onarc(middle, radius * 0.85, turn - half),
                        onarc(middle, radius, turn));
        }
        ray.lineTo(right);
        drawshape(painter, ray, i % 2 == 0 ? ochre : vellum, 0.9);
    }
    painter.setBrush(ochre.lighter(120));
    painter.setPen(inkpen(1.2));
    painter.drawEllipse(middle, radius * 0.56, radius * 0.56);
    const Placed placed(painter, middle, radius * 1.12);
    QPainterPath face;
    for (const double side : {-1.0, 1.0}) {
        face.moveTo(side * 26, -14);
        face.quadTo(side * 17, -22, side * 9, -14);
        face.addEllipse(QPointF(side * 17, -8), 3, 3);
    }
    face.moveTo(0, -10);
    face.quadTo(-6, 6, 2, 6);
    face.moveTo(-14, 17);
    face.quadTo(0, 28, 14, 17);
    painter.strokePath(face, inkpen(3));
}

void drawmoon(QPainter& painter, const QPointF& middle, double radius)
{
    QPainterPath disc;
    disc.addEllipse(middle, radius * 0.8, radius * 0.8);
    QPainterPath shade;
    shade.addEllipse(middle + QPointF(radius * 0.38, -radius * 0.12), radius * 0.66, radius * 0.66);
    drawshape(painter, disc.subtracted(shade), vellum, 1.2);
    constexpr std::array<std::array<double, 3>, 4> stars = {
        {{0.35, -0.25, 0.2}, {0.75, 0.2, 0.13}, {0.85, -0.7, 0.15}, {0.2, 0.25, 0.1}}};
    for (const auto& [x, y, size] : stars) {
        const QPointF at = middle + radius * QPointF(x, y);
        QPainterPath star;
        star.moveTo(onarc(at, radius * size, 0));
        for (int i = 1; i < 12; ++i) {
            star.lineTo(onarc(at, radius * size * (i % 2 == 0 ? 1 : 0.4), i / 12.0));
        }
        star.closeSubpath();
        drawshape(painter, star, ochre, 0.8);
    }
}

void drawship(QPainter& painter, const QPointF& middle, double size)
{
    const Placed placed(painter, middle, size);
    painter.setPen(inkpen(1.6));
    for (const double mast : {-22.0, 2.0, 24.0}) {
        painter.drawLine(QPointF(mast, 22), QPointF(mast, mast == 2.0 ? -46 : -36));
    }
    painter.drawLine(QPointF(36, 16), QPointF(50, 6)); // the bowsprit
    QPainterPath hull;
    hull.moveTo(-44, 8);
    hull.lineTo(-30, 10);
    hull.lineTo(-28, 18);
    hull.lineTo(26, 18);
    hull.lineTo(28, 13);
    hull.lineTo(42, 11);
    hull.quadTo(38, 26, 28, 34);
    hull.lineTo(-32, 34);
    hull.quadTo(-40, 24, -44, 8);
    drawshape(painter, hull, ochre, 1.6);
    QPainterPath planks;
    planks.moveTo(-38, 22);
    planks.lineTo(36, 22);
    planks.moveTo(-35, 28);
    planks.lineTo(33, 28);
    painter.strokePath(planks, inkpen(0.9));
    drawshape(painter, sail(-32, -14, -28, -8), vellum, 1.3);
    drawshape(painter, sail(-33, -13, -6, 12), vellum, 1.3);
    drawshape(painter, sail(-8, 11, -38, -18), vellum, 1.3);
    drawshape(painter, sail(-10, 12, -15, 13), vellum, 1.3);
    drawshape(painter, sail(17, 31, -27, -8), vellum, 1.3);
    drawshape(painter, sail(16, 32, -6, 9), vellum, 1.3);
    for (const QPointF& top : {QPointF(-22, -36), QPointF(2, -46), QPointF(24, -36)}) {
        drawshape(painter, flag(top.x(), top.y()), carmine, 0.9);
    }
    drawwaves(painter, -54, 46, 36);
    drawwaves(painter, -42, 54, 42);
}

void drawserpent(QPainter& painter, const QPointF& middle, double size)
{
    const Placed placed(painter, middle, size);
    constexpr std::array<std::array<double, 3>, 3> humps = {{{-40, -18, 16}, {-14, 12, 24}, {14, 36, 18}}};
    for (const auto& [left, right, top] : humps) {
        const double width = right - left;
        QPainterPath hump;
        hump.moveTo(left, 30);
        hump.cubicTo(left, 30 - top * 1.5, right, 30 - top * 1.5, right, 30);
        hump.lineTo(right - width * 0.32, 30);
        hump.cubicTo(right - width * 0.34, 30 - top * 0.5, left + width * 0.34, 30 - top * 0.5, left + width * 0.32,
                     30);
        hump.closeSubpath();
        drawshape(painter, hump, verdigris, 1.5);
        QPainterPath scales;
        for (const double part : {0.3, 0.5, 0.7}) {
            scales.moveTo(left + width * part - 2, 30 - top * 0.72);
            scales.quadTo(left + width * part, 30 - top * 0.5, left + width * part + 2, 30 - top * 0.72);
        }
        painter.strokePath(scales, inkpen(1));
    }
    QPainterPath tail;
    tail.moveTo(42, 30);
    tail.quadTo(46, 14, 42, 8);
    tail.quadTo(50, 6, 54, -2);
    tail.quadTo(54, 10, 50, 16);
    tail.quadTo(48, 24, 48, 30);
    drawshape(painter, tail, verdigris, 1.5);
    QPainterPath neck;
    neck.moveTo(-52, 30);
    neck.cubicTo(-60, 4, -34, -4, -40, -22);
    neck.cubicTo(-44, -32, -58, -34, -66, -26);
    neck.lineTo(-76, -20);
    neck.lineTo(-64, -19);
    neck.lineTo(-72, -11);
    neck.quadTo(-58, -9, -52, -16);
    neck.cubicTo(-52, 0, -70, 6, -64, 30);
    neck.closeSubpath();
    drawshape(painter, neck, verdigris, 1.5);
    QPainterPath crest;
    crest.moveTo(-46, -29);
    crest.lineTo(-36, -36);
    crest.lineTo(-38, -24);
    crest.lineTo(-30, -26);
    crest.lineTo(-37, -14);
    crest.lineTo(-30, -12);
    crest.lineTo(-41, -4);
    drawshape(painter, crest, carmine, 1.1);
    painter.setBrush(sepia);
    painter.drawEllipse(QPointF(-57, -25), 1.6, 1.6);
    drawwaves(painter, -78, 60, 33);
    drawwaves(painter, -60, 50, 39);
}

void drawcartouche(QPainter& painter, const QRectF& box)
{
    constexpr double curl = 17;
    const double y = box.center().y();
    // The ends roll back behind the panel.
    for (const double side : {-1.0, 1.0}) {
        const double x = side < 0 ? box.left() : box.right();
        QPainterPath end;
        end.moveTo(x - side * 26, box.top() + 12);
        end.lineTo(x + side * 34, box.top() + 22);
        end.lineTo(x + side * 20, y);
        end.lineTo(x + side * 34, box.bottom() - 6);
        end.lineTo(x - side * 26, box.bottom() - 6);
        end.closeSubpath();
        drawshape(painter, end, ochre.lighter(125), 1.4);
    }
    QPainterPath panel;
    panel.addRoundedRect(box, curl, curl);
    drawshape(painter, panel, vellum, 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(carmine, 1.6));
    painter.drawRoundedRect(box.adjusted(6, 6, -6, -6), curl - 5, curl - 5);
    painter.setPen(inkpen(0.8));
    painter.drawRoundedRect(box.adjusted(9, 9, -9, -9), curl - 8, curl - 8);
    // Spirals where the paper curls.
    for (const double side : {-1.0, 1.0}) {
        for (const double level : {-1.0, 1.0}) {
            const QPointF eye((side < 0 ? box.left() : box.right()) - side * 25, y + level * (box.height() / 2 - 25));
            QPainterPath spiral;
            constexpr int steps = 48;
            for (int i = 0; i <= steps; ++i) {
                const double part = static_cast<double>(i) / steps;
                const QPointF arm = onarc({}, 2 + 9 * part, part * 1.75);
                const QPointF at = eye + QPointF(side * arm.x(), level * arm.y());
                if (i == 0) {
                    spiral.moveTo(at);
                } else {
                    spiral.lineTo(at);
                }
            }
            painter.strokePath(spiral, inkpen(1.3));
        }
    }
}

void drawneatline(QPainter& painter, const QRectF& outer, double width, double piece)
{
    const QRectF inner = outer.adjusted(width, width, -width, -width);
    painter.setPen(Qt::NoPen);
    const auto pieces = [&](double from, double to, bool upright) {
        const int count = static_cast<int>(std::lround((to - from) / piece));
        const double length = (to - from) / count;
        for (int i = 0; i < count; ++i) {
            const double start = from + i * length;
            painter.setBrush(i % 2 == 0 ? sepia : vellum);
            for (const bool far : {false, true}) {
                const double across =
                    upright ? (far ? inner.right() : outer.left()) : (far ? inner.bottom() : outer.top());
                painter.drawRect(upright ? QRectF(across, start, width, length) : QRectF(start, across, length, width));
            }
        }
    };
    pieces(inner.left(), inner.right(), false);
    pieces(inner.top(), inner.bottom(), true);
    painter.setBrush(carmine);
    for (const QPointF& corner : {outer.topLeft(), QPointF(inner.right(), outer.top()),
                                  QPointF(outer.left(), inner.bottom()), inner.bottomRight()}) {
        painter.drawRect(QRectF(corner, QSizeF(width, width)));
    }
    painter.setBrush(Qt::NoBrush);
    painter.setPen(inkpen(1.2));
    painter.drawRect(outer);
    painter.drawRect(inner);
}

} // namespace brindor::mapmaker
