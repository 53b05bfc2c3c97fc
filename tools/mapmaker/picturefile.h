#pragma once

#include <QColor>
#include <QImage>
#include <cstddef>
#include <string>
#include <vector>

namespace brindor::mapmaker {

// Where a picture is larger than its limit, its colours stay or become fewer.
enum class Colours { all, fewer };

// The picture as a PNG file with a palette: the colours in `kept` and the most frequent others, 24 at the most, and
// with fewer colours down to the kept ones alone where the file would be larger than `limit` bytes. It can be larger
// still. The same picture gives the same bytes.
std::string pngbytes(const QImage& picture, const std::vector<QColor>& kept, std::size_t limit, Colours colours);

// The picture as a PNG file with all its colours.
std::string fullpngbytes(const QImage& picture);

// The picture as a BMP file with 24 bits a pixel.
std::string bmpbytes(const QImage& picture);

// The picture as a JPEG file, in a quality that shows no loss to the eye.
std::string jpegbytes(const QImage& picture);

} // namespace brindor::mapmaker
