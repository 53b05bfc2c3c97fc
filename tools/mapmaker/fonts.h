#pragma once

#include "base/result.h"

#include <QPainterPath>
#include <QPointF>
#include <QString>

// Texts on pictures: outlines of the Liberation fonts, whatever the machine's own font is.
namespace brindor::mapmaker {

enum class Face { sansbold, serifbold, serifitalic };

// Fails where the fonts are not installed.
Result<Done> checkfonts();

// One line of text with its middle at `middle`, `height` pixels high as a font size, smaller where it would be wider
// than `widest`.
QPainterPath textpath(const QString& text, Face face, double height, double widest, const QPointF& middle);

} // namespace brindor::mapmaker
