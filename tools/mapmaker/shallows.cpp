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
        const int width = image.width();
        const int height = image.height();
        for (int y = 0; y < height; ++y) {
            const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
            std::transform(line, line + width, row(y), [water](QRgb pixel) { return pixel == water ? far : 0; });
        }
        for (int y = 0; y < height; ++y) {
            for (int* value = row(y); value != row(y) + width; ++value) {
                reach(value, -1);
            }
        }
        for (int y = height - 1; y >= 0; --y) {
            for (int* value = row(y) + width - 1; value != row(y) - 1; --value) {
                reach(value, 1);
            }
        }
    }

    // The distances of the picture's row, the next pixel's behind each.
    int* row(int y) { return &values_[static_cast<std::size_t>(y + 1) * static_cast<std::size_t>(stride_) + 1]; }

private:
    // From the neighbours that the way `step` through the picture has passed.
    void reach(int* value, std::ptrdiff_t step) const
    {
        const int* next = value + step * stride_; // in the row that was passed
        const int nearest = std::min({value[step] + unit, *next + unit, next[step] + across, next[-step] + across});
        *value = std::min(*value, nearest);
    }

    std::ptrdiff_t stride_;
    std::vector<int> values_;
};

} // namespace

void shadewater(QImage& image, const QColor& water, std::span<const Shallows> bands)
{
    Distances distances(image, water.rgb());
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const int* from = distances.row(y);
        for (int x = 0; x < width; ++x) {
            const int distance = from[x];
            const auto band = std::find_if(bands.begin(), bands.end(),
                                           [distance](const Shallows& wide) { return distance <= wide.width * unit; });
            if (distance > 0 && band != bands.end()) {
                line[x] = band->colour.rgb();
            }
        }
    }
}

} // namespace brindor::mapmaker
