#pragma once

#include <QColor>
#include <QImage>

#include <gtest/gtest.h>

namespace brindor::tests {

// A picture as it looks from afar, a quarter as large, so that the edges of letters, which differ between machines, do
// not count.
inline QImage afar(const QImage& picture)
{
    return picture.convertToFormat(QImage::Format_RGB32)
        .scaled(picture.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// How many pixels of two pictures are of other colours, by more than `clearly` of 255 in red, green or blue. Two sizes
// fail the test.
inline int differing(const QImage& one, const QImage& other, int clearly)
{
    EXPECT_EQ(one.size(), other.size());
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            const auto far = [clearly](int here, int there) { return std::abs(here - there) > clearly; };
            count += far(a.red(), b.red()) || far(a.green(), b.green()) || far(a.blue(), b.blue()) ? 1 : 0;
        }
    }
    return count;
}

} // namespace brindor::tests
