#include "toolkit/qt/flatbutton.h"

#include "toolkit/qt/appearance.h"
#include "toolkit/qt/keys.h"
#include "toolkit/qt/qttext.h"

#include <QKeyEvent>
#include <QPainter>

namespace brindor::toolkit::qt {

namespace {

// In pixels at zoom 1.
constexpr double sidemargin = 6;
constexpr double topmargin = 2;

} // namespace

FlatButton::FlatButton(Button& button, QWidget* parent) : QPushButton(parent), button_(button)
{
    setAttribute(Qt::WA_Hover);
}

void FlatButton::refresh()
{
    const QString text = shown(button_.text);
    setcaption(*this, text, button_.accesskey);
    text_.set(text, font(), Align::centre, button_.accesskey);
}

int FlatButton::heightneeded(int width)
{
    const Zoom zoom = zoomof(*this);
    return text_.heightfor(width - 2 * zoom.length(sidemargin)) + 2 * zoom.length(topmargin);
}

void FlatButton::dim(bool on)
{
    dimmed_ = on;
    update();
}

void FlatButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setOpacity(dimmed_ ? 0.35 : 1);
    const bool pickedup = button_.screen->dragged == &button_;
    drawsurface(painter, rect(), qtcolour(button_.back),
                {.hovered = isEnabled() && underMouse(),
                 .pressed = isDown(),
                 .strongedge = button_.screen->defaultbutton == &button_,
                 .pickedup = pickedup,
                 .focused = hasFocus()});
    const Zoom zoom = zoomof(*this);
    const int side = zoom.length(sidemargin);
    const int top = zoom.length(topmargin);
    text_.draw(painter, rect().adjusted(side, top, -side, -top), lettercolour(button_, isEnabled()));
}

void FlatButton::keyPressEvent(QKeyEvent* event)
{
    if (presses(*event) && event->key() != Qt::Key_Space) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

bool FlatButton::event(QEvent* event)
{
    return pressedbyaccesskey(*this, *event) || QPushButton::event(event);
}

} // namespace brindor::toolkit::qt
