#include "mapmaker/shallows.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace brindor::mapmaker {

namespace {

// Distances are counted in fifths of a pixel: 5 to the next pixel, 7 to the one across the corner.
constexpr int unit = 5;
constexpr int across = 7;
constexpr int far = 10000;

// A field of distances with a border of far pixels, so that no neighbour is missing.
class Distances {
public:
    Distances(const QImage& image, QRgb water)
        : stride_(image.width() + 2),
          values_(static_cast<std::size_t>(stride_) * static_cast<std::size_t>(image.height() + 2), far)
    {
        for (int y = 0; y < image.height(); ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            for (int x = 0; x < image.width(); ++x) {
                values_[index(x, y)] = line[x] == water ? far : 0;
            }
        }
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                reach(x, y, -1);
            }
        }
        for (int y = image.height() - 1; y >= 0; --y) {
            for (int x = image.width() - 1; x >= 0; --x) {
                reach(x, y, 1);
            }
        }
    }

    int at(int x, int y) const { return values_[index(x, y)]; }

private:
    std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y + 1) * static_cast<std::size_t>(stride_) + static_cast<std::size_t>(x + 1);
    }

    // From the neighbours that the way `step` through the picture has passed.
    void reach(int x, int y, int step)
    {
        int& value = values_[index(x, y)];
        value = std::min({value, at(x + step, y) + unit, at(x, y + step) + unit, at(x + step, y + step) + across,
                          at(x - step, y + step) + across});
    }

    int stride_;
    std::vector<int> values_;
};

} // namespace

void shadewater(QImage& image, const QColor& water, std::span<const Shallows> bands)
{
    const Distances distances(image, water.rgb());
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int distance = distances.at(x, y);
            const auto band = std::find_if(bands.begin(), bands.end(),
                                           [distance](const Shallows& wide) { return distance <= wide.width * unit; });
            if (distance > 0 && band != bands.end()) {
                line[x] = band->colour.rgb();
            }
        }
    }
}

} // namespace brindor::mapmaker
