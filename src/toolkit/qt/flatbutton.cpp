#include "toolkit/qt/flatbutton.h"

#include "toolkit/qt/appearance.h"
#include "toolkit/qt/keys.h"
#include "toolkit/qt/qttext.h"

#include <QKeyEvent>
#include <QPainter>

namespace brindor::toolkit::qt {

namespace {

constexpr int sidemargin = 6;
constexpr int topmargin = 2;

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
    return text_.heightfor(width - 2 * sidemargin) + 2 * topmargin;
}

void FlatButton::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const bool pickedup = button_.screen->dragged == &button_;
    drawsurface(painter, rect(), qtcolour(button_.back),
                {.hovered = isEnabled() && underMouse(),
                 .pressed = isDown(),
                 .strongedge = button_.screen->defaultbutton == &button_,
                 .pickedup = pickedup,
                 .focused = hasFocus()});
    text_.draw(painter, rect().adjusted(sidemargin, topmargin, -sidemargin, -topmargin),
               lettercolour(button_, isEnabled()));
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
