#include "mapmaker/fonts.h"

#include <QFont>
#include <QFontInfo>
#include <QTransform>
#include <algorithm>
#include <array>
#include <cstddef>

namespace brindor::mapmaker {

namespace {

constexpr const char* sansfamily = "Liberation Sans";
constexpr const char* seriffamily = "Liberation Serif";
constexpr int outlinesize = 100; // pixels; outlines are taken at one size and scaled, so no hinting gets in

QFont fontof(Face face)
{
    QFont font(face == Face::sansbold ? sansfamily : seriffamily);
    font.setPixelSize(outlinesize);
    font.setBold(face != Face::serifitalic);
    font.setItalic(face == Face::serifitalic);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

Result<Done> checkfonts()
{
    for (const char* family : {sansfamily, seriffamily}) {
        if (QFontInfo(QFont(family)).family() != family) {
            return {std::nullopt, std::string("the font ") + family + " is missing; install the Liberation fonts"};
        }
    }
    return {Done{}, {}};
}

QPainterPath textpath(const QString& text, Face face, double height, double widest, const QPointF& middle)
{
    QPainterPath path;
    path.addText(0, 0, fontof(face), text);
    const QRectF box = path.boundingRect();
    double scale = height / outlinesize;
    if (box.width() * scale > widest) {
        scale = widest / box.width();
    }
    QTransform move;
    move.translate(middle.x(), middle.y());
    move.scale(scale, scale);
    // Letters without a tail stand on one line, so the height is that of a capital letter.
    constexpr double capital = 0.7 * outlinesize;
    move.translate(-box.center().x(), capital / 2);
    return move.map(path);
}

} // namespace brindor::mapmaker
