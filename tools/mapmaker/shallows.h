#pragma once

#include <QColor>
#include <QImage>
#include <span>

namespace brindor::mapmaker {

struct Shallows {
    double width; // pixels from the land
    QColor colour;
};

// Colours the pixels of the colour `water` that lie near pixels of any other colour, in bands from the narrowest to
// the widest. The picture's format is RGB32.
void shadewater(QImage& image, const QColor& water, std::span<const Shallows> bands);

} // namespace brindor::mapmaker
