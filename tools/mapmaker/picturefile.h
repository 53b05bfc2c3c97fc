#pragma once

#include <QColor>
#include <QImage>
#include <cstddef>
#include <string>
#include <vector>

namespace brindor::mapmaker {

inline constexpr std::size_t largestmap = 25 * 1024; // bytes

// The picture as a PNG file with a palette: the colours in `kept` and the most frequent others, 24 at the most and
// down to the kept ones alone where the file would be larger than `limit` bytes. The same picture gives the same bytes.
std::string pngbytes(const QImage& picture, const std::vector<QColor>& kept, std::size_t limit);

// The picture as a BMP file with 24 bits a pixel.
std::string bmpbytes(const QImage& picture);

} // namespace brindor::mapmaker
