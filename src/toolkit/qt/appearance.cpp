#include "toolkit/qt/appearance.h"

#include "toolkit/faces.h"
#include "toolkit/qt/windowicon.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPixmapCache>
#include <QPlainTextEdit>
#include <QProxyStyle>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QToolTip>

#include <algorithm>
#include <array>
#include <cmath>

namespace brindor::toolkit::qt {

namespace {

constexpr QColor markcolour(24, 60, 140);     // behind selected text and lines
constexpr QColor focuscolour(16, 24, 64);     // dark enough for every colour that the screens use
constexpr QColor plainsurface(236, 220, 176); // messages: the paper of the main screen
constexpr QColor plainbutton(245, 222, 160);

QPalette plainpalette()
{
    QPalette palette(plainbutton, plainsurface);
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

// The light that a colour gives, 0 to 1, as the eye sees it.
double luminance(const QColor& colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& dark, const QColor& light)
{
    return (luminance(light) + 0.05) / (luminance(dark) + 0.05);
}

// The family that is there. To leave the choice to Qt would make it sort all fonts of the machine once for each name.
const QString& familyfor(Face face)
{
    static const auto present = [] {
        std::array<QString, families.size()> names;
        for (const FaceFamilies& family : families) {
            const QString wanted = QLatin1String(family.wanted);
            names[static_cast<std::size_t>(family.face)] =
                QFontDatabase::hasFamily(wanted) ? wanted : QLatin1String(family.free);
        }
        return names;
    }();
    return present[static_cast<std::size_t>(face)];
}

// The buttons of messages look like those of the screens, and what the style measures grows with the zoom.
class PlainStyle : public QProxyStyle {
public:
    PlainStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override
    {
        const int plain = QProxyStyle::pixelMetric(metric, option, widget);
        if (metric == PM_DefaultFrameWidth && qobject_cast<const QPlainTextEdit*>(widget) != nullptr) {
            return 2; // the line round the one that has the keyboard
        }
        const bool grows = metric == PM_ScrollBarExtent || metric == PM_MessageBoxIconSize || metric == PM_ButtonMargin;
        return grows ? basezoom().length(plain) : plain;
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override
    {
        if (element != CE_PushButtonBevel) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        const QStyle::State state = option->state;
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        drawsurface(*painter, option->rect, option->palette.color(QPalette::Button),
                    {.hovered = state.testFlag(State_MouseOver),
                     .pressed = state.testFlag(State_Sunken),
                     .strongedge = button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton),
                     .pickedup = false,
                     .focused = state.testFlag(State_HasFocus)});
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        const bool field = element == PE_FrameLineEdit ||
                           (element == PE_Frame && qobject_cast<const QPlainTextEdit*>(widget) != nullptr);
        if (field) {
            painter->setPen(edgecolour(option->palette.color(QPalette::Base)));
            painter->setBrush(Qt::NoBrush);
            painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
            if (option->state.testFlag(State_HasFocus)) {
                drawfocus(*painter, option->rect);
            }
        } else if (element != PE_FrameFocusRect || qobject_cast<const QPushButton*>(widget) == nullptr) {
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        }
    }
};

} // namespace

void dressapplication()
{
    // The style keeps pictures of its scroll bars there by palette, and each window has palettes of its own.
    constexpr int kibibytes = 256;
    QPixmapCache::setCacheLimit(kibibytes);
    QApplication::setStyle(new PlainStyle);
    const QPalette palette = plainpalette();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
    QApplication::setWindowIcon(compassicon());
    dressfonts();
}

void dressfonts()
{
    const QFont plain = qtfont({Face::plain, 12, false}, basezoom());
    if (QApplication::font() != plain) {
        QApplication::setFont(plain);
        QToolTip::setFont(plain);
    }
}

QColor qtcolour(Colour colour)
{
    return QColor(colour.red, colour.green, colour.blue);
}

// A point is 1/72 of an inch and a logical pixel 1/96, whatever the desktop says about its display. Whole pixels,
// rounded down: a text never outgrows the place that it has at zoom 1.
QFont qtfont(const Font& font, Zoom zoom)
{
    const double pixelsatone = std::round(font.points * 96 / 72);
    QFont result(familyfor(font.face));
    result.setPixelSize(std::max(1, static_cast<int>(pixelsatone * zoom.factor() + 1e-6)));
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

// At least 3 : 1 to the surface, so that the edge can be told by anybody.
QColor edgecolour(const QColor& surface)
{
    QColor edge = surface.darker(165);
    while (contrast(edge, surface) < 3.1 && edge.value() > 0) {
        edge = edge.darker(115);
    }
    return edge;
}

QColor hovercolour(const QColor& surface)
{
    return surface.darker(108);
}

QColor targetcolour(const QColor& surface)
{
    return surface.darker(130);
}

void drawsurface(QPainter& painter, const QRect& rect, const QColor& colour, const SurfaceLook& look)
{
    constexpr double radius = 3;
    const QColor fill = look.pressed ? colour.darker(118) : look.hovered ? hovercolour(colour) : colour;
    const double width = look.pickedup ? 3 : look.strongedge || look.hovered ? 2 : 1;
    const QColor edge =
        look.pickedup ? QColor(Qt::black) : edgecolour(look.strongedge || look.hovered ? colour.darker(130) : colour);
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

void drawarrow(QPainter& painter, const QRectF& rect, double size, bool up, const QColor& colour)
{
    const QPointF middle = rect.center();
    const double tip = (up ? -size : size) / 4;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(
        QPolygonF({middle + QPointF(-size / 2, -tip), middle + QPointF(size / 2, -tip), middle + QPointF(0, tip)}));
    painter.restore();
}

} // namespace brindor::toolkit::qt
