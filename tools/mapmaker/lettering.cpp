#include "mapmaker/lettering.h"

#include "mapmaker/fonts.h"

#include <QRectF>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <numeric>
#include <optional>

namespace brindor::mapmaker {

namespace {

constexpr int margin = 10;      // pixels between letters and the frame's edge
constexpr int markerroom = 14;  // about the marked place
constexpr int dotroom = 12;     // a shore as near as that to a dot is the point of its event
constexpr std::size_t most = 6; // names on a map
constexpr std::size_t mostseas = 3;

constexpr double labelsize = 25; // pixels
constexpr double smallestname = 14;
constexpr double largestname = 22;

bool isbeside(Feature feature)
{
    return feature == Feature::island || feature == Feature::lake;
}

// With a little air around the letters.
QRect boxof(const QPainterPath& text)
{
    return text.boundingRect().toAlignedRect().adjusted(-3, -3, 3, 3);
}

QRect around(const QPointF& middle, int reach)
{
    return {static_cast<int>(middle.x()) - reach, static_cast<int>(middle.y()) - reach, 2 * reach + 1, 2 * reach + 1};
}

} // namespace

Ground::Sums::Sums(const QSize& size)
    : size_(size), values_(static_cast<std::size_t>(size.width() + 1) * static_cast<std::size_t>(size.height() + 1))
{
}

Ground::Sums::Row Ground::Sums::row(int y)
{
    return {&values_[index(1, y)], &values_[index(1, y + 1)], 0};
}

std::size_t Ground::Sums::index(int x, int y) const
{
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width() + 1) + static_cast<std::size_t>(x);
}

int Ground::Sums::over(const QRect& box) const
{
    const QRect inside = box.intersected(QRect(QPoint(0, 0), size_));
    if (inside.isEmpty()) {
        return 0;
    }
    const auto value = [this](int x, int y) { return values_[index(x, y)]; };
    const int right = inside.x() + inside.width();
    const int bottom = inside.y() + inside.height();
    return value(right, bottom) - value(inside.x(), bottom) - value(right, inside.y()) + value(inside.x(), inside.y());
}

Ground::Ground(const QImage& picture, const QColor& water) : coast_(picture.size()), water_(picture.size())
{
    const QRgb colour = water.rgb();
    const int width = picture.width();
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const auto* above = reinterpret_cast<const QRgb*>(picture.constScanLine(std::max(y - 1, 0)));
        Sums::Row coastrow = coast_.row(y);
        Sums::Row waterrow = water_.row(y);
        bool waswet = line[0] == colour;
        for (int x = 0; x < width; ++x) {
            const bool wet = line[x] == colour;
            coastrow.add(wet != waswet || wet != (above[x] == colour));
            waterrow.add(wet);
            waswet = wet;
        }
    }
}

int Ground::coast(const QRect& box) const
{
    return coast_.over(box);
}

int Ground::water(const QRect& box) const
{
    return water_.over(box);
}

Lettering::Lettering(const QSize& size, const Ground& ground, std::vector<QPointF> dots, const QPointF& marked)
    : frame_(QPoint(0, 0), size), ground_(ground), dots_(std::move(dots)), marked_(marked),
      taken_({around(marked, markerroom)})
{
}

// The coast and the dots under a box, in pixels of coast.
double Lettering::hidden(const QRect& box) const
{
    constexpr double dot = 30;
    constexpr double shore = 4;
    double sum = ground_.coast(box) + shore * ground_.coast(box.intersected(around(marked_, 2 * dotroom)));
    for (const QPointF& at : dots_) {
        const QRect near = box.intersected(around(at, dotroom));
        if (!near.isEmpty()) {
            sum += shore * ground_.coast(near) + (near.contains(at.toPoint()) ? dot : 0);
        }
    }
    return sum;
}

bool Lettering::isfree(const QRect& box) const
{
    return frame_.adjusted(margin, margin, -margin, -margin).contains(box) &&
           std::none_of(taken_.begin(), taken_.end(), [&box](const QRect& other) { return other.intersects(box); });
}

QPainterPath Lettering::label(const QString& name)
{
    constexpr int gap = 16;
    constexpr double pershift = 2; // for a side that is less usual
    const QPainterPath text = textpath(name, Face::sansbold, labelsize, frame_.width() - 4 * margin, {0, 0});
    const QRect shape = boxof(text);
    const double across = shape.width() / 2.0 + gap;
    const double down = shape.height() / 2.0 + gap;
    const std::array<QPointF, 10> sides = {{{across, 0},
                                            {0, -down},
                                            {0, down},
                                            {-across, 0},
                                            {across - gap, -down},
                                            {across - gap, down},
                                            {gap - across, -down},
                                            {gap - across, down},
                                            {across / 2, -down},
                                            {-across / 2, down}}};
    std::optional<Spot> best;
    for (std::size_t i = 0; i < sides.size(); ++i) {
        QRect box = shape;
        box.moveCenter((marked_ + sides[i]).toPoint());
        // A long name is pushed back into the frame, as long as it stays clear of the marker.
        const QRect room = frame_.adjusted(margin, margin, -margin, -margin);
        box.moveLeft(std::clamp(box.left(), room.left(), std::max(room.left(), room.right() - box.width())));
        if (!isfree(box)) {
            continue;
        }
        const double cost = hidden(box) + pershift * static_cast<double>(i);
        if (!best || cost < best->cost) {
            best = Spot{cost, box};
        }
    }
    const QRect box = best ? best->box : shape.translated((marked_ - QPointF(0, down)).toPoint());
    taken_.push_back(box);
    return text.translated(QRectF(box).center() - QRectF(shape).center());
}

QRect Lettering::corner(const QSize& box, int away)
{
    const int right = frame_.width() - away - box.width();
    const int bottom = frame_.height() - away - box.height();
    const std::array<QPoint, 4> corners = {{{away, bottom}, {right, bottom}, {away, away}, {right, away}}};
    constexpr double percorner = 40; // a little more coast does not move it away from its usual one
    std::optional<Spot> best;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QRect at(corners[i], box);
        const bool free =
            std::none_of(taken_.begin(), taken_.end(), [&](const QRect& other) { return other.intersects(at); });
        const double cost = hidden(at) + percorner * static_cast<double>(i) + (free ? 0 : 1e6);
        if (!best || cost < best->cost) {
            best = Spot{cost, at};
        }
    }
    taken_.push_back(best->box.adjusted(-6, -6, 6, 6));
    return best->box;
}

// The places at which a name may stand: from the middle of its ellipse outwards and all round, as far as the frame
// shows them. No places where it shows none.
Lettering::Candidate Lettering::candidateof(const View& view, const PlaceName& name) const
{
    constexpr int circles = 4;
    constexpr int directions = 16;
    constexpr double near = 320;      // pixels
    constexpr double leastseen = 0.3; // so that the ocean at the edge of a map has its name too
    constexpr double full = 2 * std::numbers::pi;
    Candidate candidate{&name, {}, 0, 0};
    if (!view.mayreach(name.middle, name.width / 2 + name.height / 2)) {
        return candidate;
    }
    for (int circle = 0; circle <= circles; ++circle) {
        for (int i = 0; i < (circle == 0 ? 1 : directions); ++i) {
            const double angle = full * i / directions;
            const double part = static_cast<double>(circle) / circles / 2;
            const Position at{name.middle.latitude + part * name.height * std::sin(angle),
                              name.middle.longitude + part * name.width * std::cos(angle)};
            if (const std::optional<QPointF> place = view.seen(at); place && frame_.contains(place->toPoint())) {
                candidate.places.push_back(*place);
            }
        }
    }
    if (candidate.places.empty()) {
        return candidate;
    }
    const auto count = static_cast<double>(candidate.places.size());
    const double seen = count / (1 + circles * directions);
    const double narrowing = std::cos(name.middle.latitude * full / 360);
    candidate.width = name.width * narrowing * view.pixelsperdegree();
    const double area = candidate.width * name.height * view.pixelsperdegree() * seen;
    const QPointF away = std::accumulate(candidate.places.begin(), candidate.places.end(), QPointF()) / count - marked_;
    candidate.weight = std::sqrt(area) * std::max(seen, leastseen) * std::exp(-std::hypot(away.x(), away.y()) / near) *
                       (name.feature == Feature::island ? 1.5 : 1);
    return candidate;
}

std::optional<Lettering::Spot> Lettering::spotfor(const View& view, const Candidate& candidate,
                                                  const QRect& shape) const
{
    constexpr double perplace = 0.6;  // from the middle outwards
    constexpr double seawater = 0.86; // some islets may lie under the name of a sea
    constexpr double landwater = 0.35;
    const PlaceName& name = *candidate.name;
    std::vector<QPointF> places = candidate.places;
    if (isbeside(name.feature)) {
        const QPointF middle = view.point(name.middle);
        const QPointF down(0, name.height * view.pixelsperdegree() / 2 + shape.height() / 2.0);
        const QPointF across(candidate.width / 2 + shape.width() / 2.0, 0);
        places = {middle + down, middle - down, middle + across, middle - across};
    }
    std::optional<Spot> best;
    for (std::size_t i = 0; i < places.size(); ++i) {
        QRect box = shape;
        box.moveCenter(places[i].toPoint());
        const double wet = static_cast<double>(ground_.water(box)) / (shape.width() * shape.height());
        const bool right = name.feature == Feature::sea    ? wet >= seawater
                           : name.feature == Feature::land ? wet <= landwater
                                                           : true;
        if (!right || !isfree(box)) {
            continue;
        }
        const double cost = hidden(box) + static_cast<double>(i) * perplace;
        if (!best || cost < best->cost) {
            best = Spot{cost, box};
        }
    }
    return best;
}

std::vector<Lettering::Written> Lettering::names(const View& view, const std::vector<PlaceName>& names,
                                                 std::int64_t year, const QString& label)
{
    constexpr int apart = 14;
    constexpr double widest = 1.8; // of what bears the name
    std::vector<Candidate> candidates;
    for (const PlaceName& name : names) {
        if (year >= name.from && year <= name.to && name.text != label) {
            candidates.push_back(candidateof(view, name));
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(),
                     [](const Candidate& a, const Candidate& b) { return a.weight > b.weight; });

    std::vector<Written> written;
    std::size_t seas = 0;
    for (const Candidate& candidate : candidates) {
        const PlaceName& name = *candidate.name;
        const bool sea = name.feature == Feature::sea;
        const bool again = std::any_of(written.begin(), written.end(),
                                       [&name](const Written& other) { return other.name->text == name.text; });
        if (candidate.places.empty() || written.size() == most || (sea && seas == mostseas) || again) {
            continue;
        }
        const double size =
            std::clamp(candidate.width / static_cast<double>(name.text.size()) * 1.4, smallestname, largestname);
        const QPainterPath text = textpath(name.text, Face::serifitalic, size, frame_.width(), {0, 0});
        const QRect shape = boxof(text);
        if (!isbeside(name.feature) && shape.width() > widest * candidate.width) {
            continue;
        }
        if (const std::optional<Spot> best = spotfor(view, candidate, shape)) {
            taken_.push_back(best->box.adjusted(-apart, -apart, apart, apart));
            written.push_back({&name, text.translated(QRectF(best->box).center() - QRectF(shape).center())});
            seas += sea ? 1 : 0;
        }
    }
    return written;
}

} // namespace brindor::mapmaker
