#include "mapmaker/icon.h"

#include "base/text.h"
#include "mapmaker/ornaments.h"

#include <QPainter>
#include <QPolygonF>
#include <cmath>
#include <numbers>
#include <vector>

namespace brindor::mapmaker {

namespace {

constexpr double side = 256; // the icon is made of shapes in a square of this size
constexpr double middle = side / 2;
constexpr double edge = 120; // the radius of the whole
constexpr int smallicon = 32;

// A circle where the polygon is empty.
struct Shape {
    QPolygonF polygon;
    double radius;
    QColor fill;
    double line; // the thickness of the outline
};

QPointF onarc(double radius, double turn)
{
    const double angle = 2 * std::numbers::pi * turn;
    return {middle + radius * std::sin(angle), middle - radius * std::cos(angle)};
}

// Points of a rose that has `count` directions: all of them, or every second one from the `first`; each half light and
// half dark.
void addpoints(std::vector<Shape>& shapes, int count, int first, double length, double waist, const QColor& dark,
               double line)
{
    for (int i = first; i < count; i += first + 1) {
        const double turn = static_cast<double>(i) / count;
        for (const double half : {-1.0, 1.0}) {
            const QPolygonF point({onarc(0, 0), onarc(waist, turn + half / 8), onarc(length, turn)});
            shapes.push_back({point, 0, half < 0 ? vellum : dark, line});
        }
    }
}

std::vector<Shape> shapesof(bool small)
{
    const double line = small ? 10 : 3;
    std::vector<Shape> shapes = {{{}, edge, ochre, small ? 14.0 : 6.0}, {{}, edge * 0.82, vellum, line}};
    if (!small) {
        addpoints(shapes, 8, 1, edge * 0.7, edge * 0.2, verdigris, line);
    }
    addpoints(shapes, 4, 0, edge * (small ? 0.86 : 0.98), edge * (small ? 0.34 : 0.24), carmine, small ? 5 : line);
    if (!small) {
        shapes.push_back({{}, edge * 0.1, ochre, line});
    }
    return shapes;
}

std::string svgnumber(double number)
{
    return decimaltext(std::round(number * 100) / 100);
}

} // namespace

QImage iconpicture(int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size / side, size / side);
    for (const Shape& shape : shapesof(size <= smallicon)) {
        painter.setBrush(shape.fill);
        painter.setPen(inkpen(shape.line));
        if (shape.polygon.isEmpty()) {
            painter.drawEllipse(QPointF(middle, middle), shape.radius, shape.radius);
        } else {
            painter.drawPolygon(shape.polygon);
        }
    }
    return image;
}

std::string iconsvg()
{
    std::string svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="256" height="256" viewBox="0 0 256 256">)"
                      "\n<g stroke=\"" +
                      sepia.name().toStdString() + "\" stroke-linejoin=\"round\">\n";
    for (const Shape& shape : shapesof(false)) {
        const std::string dress =
            "fill=\"" + shape.fill.name().toStdString() + "\" stroke-width=\"" + svgnumber(shape.line) + "\"/>\n";
        if (shape.polygon.isEmpty()) {
            svg += R"(<circle cx="128" cy="128" r=")" + svgnumber(shape.radius) + "\" " + dress;
            continue;
        }
        std::string points;
        for (const QPointF& point : shape.polygon) {
            points += (points.empty() ? "" : " ") + svgnumber(point.x()) + ',' + svgnumber(point.y());
        }
        svg += "<polygon points=\"" + points + "\" " + dress;
    }
    return svg + "</g>\n</svg>\n";
}

} // namespace brindor::mapmaker
