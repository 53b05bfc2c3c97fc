#pragma once

#include "toolkit/controls.h"
#include "toolkit/qt/zoom.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPalette>
#include <QRect>

// How the windows look: colours, fonts and the few shapes that every kind of control is drawn with.
namespace brindor::toolkit::qt {

inline constexpr double textmargin = 8; // pixels at zoom 1 between the edge of a coloured surface and its text

// The style, palette and icon of the whole application; nothing of the desktop's theme is left in force.
void dressapplication();

// The fonts of tool tips and messages, at the base zoom. Once more after each change of it.
void dressfonts();

QColor qtcolour(Colour colour);
QFont qtfont(const Font& font, Zoom zoom);

// Every role that a widget of the control draws with.
QPalette palettefor(const Control& control);

// The colour of the control's letters, paler while it cannot be used.
QColor lettercolour(const Control& control, bool usable);

QColor edgecolour(const QColor& surface);   // a darker line that stands out from a surface of this colour
QColor hovercolour(const QColor& surface);  // the surface while the mouse is over it
QColor targetcolour(const QColor& surface); // the surface while what is dragged would be dropped on it

struct SurfaceLook {
    bool hovered = false;
    bool pressed = false;
    bool strongedge = false;
    bool pickedup = false; // an outline that stands out from everything else
    bool focused = false;
};

// A flat surface with a thin darker edge.
void drawsurface(QPainter& painter, const QRect& rect, const QColor& colour, const SurfaceLook& look);

// The line round the control that has the keyboard; seen on dark surfaces as well.
void drawfocus(QPainter& painter, const QRect& rect, bool ondark = false);

// A filled arrow in the middle of a rect, `size` pixels wide.
void drawarrow(QPainter& painter, const QRectF& rect, double size, bool up, const QColor& colour);

} // namespace brindor::toolkit::qt
