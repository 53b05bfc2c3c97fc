#include "mapmaker/picturefile.h"

#include <QBuffer>
#include <QByteArray>
#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace brindor::mapmaker {

namespace {

// From quick to small. The quality of a PNG file says how little it is compressed.
struct Attempt {
    int colours;
    int quality;
};
constexpr int allcolours = 24;
constexpr std::array<Attempt, 4> attempts = {{{allcolours, 40}, {allcolours, 0}, {18, 0}, {0, 0}}};

using Frequency = std::pair<QRgb, int>;

std::span<const QRgb> lineof(const QImage& picture, int y)
{
    return {reinterpret_cast<const QRgb*>(picture.constScanLine(y)), static_cast<std::size_t>(picture.width())};
}

// How many pixels at the start of the line are alike.
std::size_t firstrun(std::span<const QRgb> line)
{
    const auto end = std::find_if(line.begin(), line.end(), [&line](QRgb pixel) { return pixel != line.front(); });
    return static_cast<std::size_t>(end - line.begin());
}

// The most frequent first; of equally frequent colours the one with the lower number.
std::vector<Frequency> frequencies(const QImage& picture)
{
    std::unordered_map<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (std::span<const QRgb> rest = lineof(picture, y); !rest.empty();) {
            const std::size_t run = firstrun(rest);
            counts[rest.front()] += static_cast<int>(run);
            rest = rest.subspan(run);
        }
    }
    std::vector<Frequency> sorted(counts.begin(), counts.end());
    std::sort(sorted.begin(), sorted.end(), [](const Frequency& a, const Frequency& b) {
        return a.second != b.second ? a.second > b.second : a.first < b.first;
    });
    return sorted;
}

int difference(QRgb a, QRgb b)
{
    const int red = qRed(a) - qRed(b);
    const int green = qGreen(a) - qGreen(b);
    const int blue = qBlue(a) - qBlue(b);
    return red * red + green * green + blue * blue;
}

uchar nearest(QRgb colour, const QList<QRgb>& palette)
{
    int best = std::numeric_limits<int>::max();
    int index = 0;
    for (int i = 0; i < palette.size(); ++i) {
        const int distance = difference(colour, palette[i]);
        if (distance < best) {
            best = distance;
            index = i;
        }
    }
    return static_cast<uchar>(index);
}

// The kept colours and then the most frequent ones. Those that hardly differ from one taken already are passed over,
// so that rare ones get their place too.
QList<QRgb> paletteof(const std::vector<Frequency>& colours, const std::vector<QColor>& kept, int size)
{
    constexpr int hardly = 3 * 8 * 8;
    QList<QRgb> palette;
    for (const QColor& colour : kept) {
        palette.push_back(colour.rgb());
    }
    for (const Frequency& colour : colours) {
        const bool near = std::any_of(palette.begin(), palette.end(),
                                      [&](QRgb taken) { return difference(taken, colour.first) < hardly; });
        if (!near && palette.size() < size) {
            palette.push_back(colour.first);
        }
    }
    return palette;
}

QImage indexed(const QImage& picture, const std::vector<Frequency>& colours, const QList<QRgb>& palette)
{
    std::unordered_map<QRgb, uchar> indices;
    for (const Frequency& colour : colours) {
        indices.emplace(colour.first, nearest(colour.first, palette));
    }
    QImage result(picture.size(), QImage::Format_Indexed8);
    result.setColorTable(palette);
    for (int y = 0; y < picture.height(); ++y) {
        uchar* to = result.scanLine(y);
        for (std::span<const QRgb> rest = lineof(picture, y); !rest.empty();) {
            const std::size_t run = firstrun(rest);
            to = std::fill_n(to, run, indices.at(rest.front()));
            rest = rest.subspan(run);
        }
    }
    return result;
}

std::string saved(const QImage& picture, const char* format, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, format, quality);
    return bytes.toStdString();
}

} // namespace

std::string pngbytes(const QImage& picture, const std::vector<QColor>& kept, std::size_t limit, Colours colours)
{
    const QImage plain = picture.convertToFormat(QImage::Format_RGB32);
    const std::vector<Frequency> found = frequencies(plain);
    std::string bytes;
    for (const Attempt& attempt : attempts) {
        if (colours == Colours::all && attempt.colours < allcolours) {
            break;
        }
        const QImage reduced = indexed(plain, found, paletteof(found, kept, attempt.colours));
        bytes = saved(reduced, "PNG", attempt.quality);
        if (bytes.size() <= limit) {
            break;
        }
    }
    return bytes;
}

std::string fullpngbytes(const QImage& picture)
{
    return saved(picture, "PNG", 0);
}

std::string bmpbytes(const QImage& picture)
{
    constexpr int ordinary = -1;
    return saved(picture.convertToFormat(QImage::Format_RGB32), "BMP", ordinary);
}

std::string jpegbytes(const QImage& picture)
{
    constexpr int fine = 82;
    return saved(picture.convertToFormat(QImage::Format_RGB32), "JPEG", fine);
}

} // namespace brindor::mapmaker
