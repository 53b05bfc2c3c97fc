#include "toolkit/qt/pictures.h"

#include "base/files.h"
#include "base/picturename.h"

#include <QBuffer>
#include <QByteArray>
#include <QImage>
#include <QImageReader>

namespace brindor::toolkit::qt {

namespace {

// For one picture while it is decoded: the most pixels that a picture may have, four bytes each.
constexpr std::int64_t mostbytes = 4 * mostpixels;
constexpr int allocationlimit = static_cast<int>(mostbytes >> 20U) + 1; // MiB

LoadedPicture failed(PictureError error)
{
    return {nullptr, error};
}

PictureError whyunread(const std::string& reason)
{
    if (reason == toolargereason) {
        return picturetoolarge;
    }
    return reason == notregularreason ? picturenotafile : picturenotfound;
}

// `format` is how the picture is decoded: some have more than four bytes a pixel.
bool istoolarge(QSize size, QImage::Format format)
{
    const std::int64_t pixels = size.isValid() ? std::int64_t{size.width()} * size.height() : 0;
    return pixels > mostpixels || pixels * QImage::toPixelFormat(format).bitsPerPixel() / 8 > mostbytes;
}

} // namespace

LoadedPicture loadpicturefile(const std::string& file)
{
    if (!picturefile("", file)) {
        return failed(isregularfile(file) || !picturenamefault(file).empty() ? pictureoutside : picturenotfound);
    }
    const Result<std::string> content = readwhole(file, largestpicturefile);
    if (!content) {
        return failed(whyunread(content.reason));
    }
    QImageReader::setAllocationLimit(allocationlimit);
    QByteArray bytes = QByteArray::fromRawData(content.value->data(), static_cast<qsizetype>(content.value->size()));
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true); // a photograph that carries a rotation mark is shown upright
    const bool turned = (reader.transformation() & QImageIOHandler::TransformationRotate90) != 0;
    const QSize size = reader.size();
    if (istoolarge(size, reader.imageFormat())) {
        return failed(picturetoolarge);
    }
    if (std::max(size.width(), size.height()) > longestside) {
        reader.setScaledSize(size.scaled(longestside, longestside, Qt::KeepAspectRatio).expandedTo({1, 1}));
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        return failed(notapicture);
    }
    auto pixmap = std::make_shared<QPixmap>(QPixmap::fromImage(image));
    const QSize original = !size.isValid() ? image.size() : turned ? size.transposed() : size;
    return {std::make_shared<PictureData>(PictureData{pixmap, original.width(), original.height()}), 0};
}

const QPixmap& StretchedPicture::at(const PictureRef& picture, QSize size, double ratio)
{
    if (picture_ == picture && size_ == size && ratio_ == ratio) {
        return stretched_;
    }
    picture_ = picture;
    size_ = size;
    ratio_ = ratio;
    stretched_ = {};
    if (picture != nullptr && picture->pixels != nullptr && !size.isEmpty()) {
        const auto& pixmap = *static_cast<const QPixmap*>(picture->pixels.get());
        stretched_ = pixmap.scaled(size * ratio, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        stretched_.setDevicePixelRatio(ratio);
    }
    return stretched_;
}

} // namespace brindor::toolkit::qt
