#pragma once

#include "mapmaker/names.h"
#include "mapmaker/projection.h"

#include <QImage>
#include <QPainterPath>
#include <QPoint>
#include <QRect>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// Where letters stand on a map, so that they hide as little as possible of what it shows.
namespace brindor::mapmaker {

// What a picture of land and water shows where. Water is whatever has the colour `water`.
class Ground {
public:
    Ground(const QImage& picture, const QColor& water);

    // Pixels inside the box; what lies outside the picture counts as nothing.
    int coast(const QRect& box) const;
    int water(const QRect& box) const;

private:
    // Sums of all pixels above and left of each.
    class Sums {
    public:
        // Fills a row from left to right, once the row above it is full.
        struct Row {
            const int* above;
            int* next;
            int sum;

            void add(bool counts)
            {
                sum += counts ? 1 : 0;
                *next++ = *above++ + sum;
            }
        };

        explicit Sums(const QSize& size);
        Row row(int y);
        int over(const QRect& box) const;

    private:
        std::size_t index(int x, int y) const;

        QSize size_;
        std::vector<int> values_;
    };

    Sums coast_;
    Sums water_;
};

// A map's letters. What has its place keeps it: each thing looks for the best room among those before it.
class Lettering {
public:
    // `dots` are the places of other events in pixels, `marked` that of the map's own.
    Lettering(const QSize& size, const Ground& ground, std::vector<QPointF> dots, const QPointF& marked);

    // The name of the marked place: on the side with least coast, that beside a dot counted several times.
    QPainterPath label(const QString& name);

    // Takes the corner of the frame in which a box hides least.
    QRect corner(const QSize& box, int margin);

    struct Written {
        const PlaceName* name;
        QPainterPath path;
    };

    // The names of some seas and regions that a view shows, the largest first, without `label` itself.
    std::vector<Written> names(const View& view, const std::vector<PlaceName>& names, std::int64_t year,
                               const QString& label);

private:
    struct Spot {
        double cost;
        QRect box;
    };

    struct Candidate {
        const PlaceName* name;
        std::vector<QPointF> places; // pixels
        double width;                // pixels of what bears the name
        double weight;
    };

    Candidate candidateof(const View& view, const PlaceName& name) const;
    std::optional<Spot> spotfor(const View& view, const Candidate& candidate, const QRect& shape) const;
    double hidden(const QRect& box) const;
    bool isfree(const QRect& box) const;

    QRect frame_;
    const Ground& ground_;
    std::vector<QPointF> dots_;
    QPointF marked_;
    std::vector<QRect> taken_;
};

} // namespace brindor::mapmaker
