#include "toolkit/qt/appearance.h"

#include "toolkit/faces.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace brindor::toolkit::qt {

namespace {

constexpr QColor markcolour(24, 60, 140);     // behind selected text and lines
constexpr QColor focuscolour(16, 24, 64);     // dark enough for every colour that the screens use
constexpr QColor plainsurface(240, 240, 240); // message boxes and the like

QPalette plainpalette()
{
    QPalette palette(plainsurface, plainsurface);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, QColor(110, 110, 110));
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, plainsurface);
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    palette.setColor(QPalette::PlaceholderText, QColor(110, 110, 110));
    palette.setColor(QPalette::Highlight, markcolour);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, markcolour);
    return palette;
}

// `part` of the way from a to b.
QColor between(const QColor& a, const QColor& b, double part)
{
    const auto mix = [part](int from, int to) { return static_cast<int>(std::lround(from + part * (to - from))); };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

} // namespace

void dressapplication()
{
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    const QPalette palette = plainpalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    for (const FaceFamilies& family : families) {
        QFont::insertSubstitution(family.wanted, family.free);
    }
    const QFont plain = qtfont({Face::plain, 11, false});
    QApplication::setFont(plain);
    QToolTip::setFont(plain);
}

QColor qtcolour(Colour colour)
{
    return QColor(colour.red, colour.green, colour.blue);
}

// A point is 1/72 of an inch and a logical pixel 1/96, whatever the desktop says about its display.
QFont qtfont(const Font& font)
{
    constexpr double logicaldpi = 96;
    const QScreen* screen = QGuiApplication::primaryScreen();
    const double dpi = screen == nullptr ? logicaldpi : screen->logicalDotsPerInchY();
    QFont result(QLatin1String(familiesof(font.face).wanted));
    result.setPointSizeF(std::max(1.0, font.points) * logicaldpi / dpi);
    result.setBold(font.bold);
    return result;
}

QPalette palettefor(const Control& control)
{
    const QColor back = qtcolour(control.back);
    QPalette palette(back, back);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, lettercolour(control, true));
        palette.setColor(QPalette::Disabled, role, lettercolour(control, false));
    }
    palette.setColor(QPalette::Base, back);
    palette.setColor(QPalette::PlaceholderText, lettercolour(control, false));
    palette.setColor(QPalette::Highlight, markcolour);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

QColor lettercolour(const Control& control, bool usable)
{
    const QColor fore = qtcolour(control.fore);
    return usable ? fore : between(fore, qtcolour(control.back), 0.55);
}

QColor edgecolour(const QColor& surface)
{
    return surface.darker(165);
}

QColor hovercolour(const QColor& surface)
{
    constexpr int pale = 225;
    return surface.lightness() >= pale ? surface.darker(107) : between(surface, Qt::white, 0.35);
}

void drawsurface(QPainter& painter, const QRect& rect, const QColor& colour, const SurfaceLook& look)
{
    constexpr double radius = 3;
    const QColor fill = look.pressed ? colour.darker(118) : look.hovered ? hovercolour(colour) : colour;
    const double width = look.pickedup ? 3 : look.strongedge ? 2 : 1;
    const QColor edge = look.pickedup ? QColor(Qt::black) : edgecolour(look.strongedge ? colour.darker(130) : colour);
    const double inset = width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, width));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), radius, radius);
    if (look.pickedup) {
        painter.setPen(QPen(Qt::white, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect).adjusted(3.5, 3.5, -3.5, -3.5), radius, radius);
    }
    painter.restore();
    if (look.focused && !look.pickedup) {
        drawfocus(painter, rect);
    }
}

void drawfocus(QPainter& painter, const QRect& rect, bool ondark)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(focuscolour, 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect).adjusted(1, 1, -1, -1), 3, 3);
    if (ondark) {
        painter.setPen(QPen(Qt::white, 1));
        painter.drawRoundedRect(QRectF(rect).adjusted(2.5, 2.5, -2.5, -2.5), 3, 3);
    }
    painter.restore();
}

} // namespace brindor::toolkit::qt
