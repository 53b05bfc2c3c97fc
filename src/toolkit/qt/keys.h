#pragma once

#include <QAbstractButton>
#include <QKeyEvent>
#include <QString>

namespace brindor::toolkit::qt {

// Whether a key presses what has the focus: Space, Return or Enter, and not one that is held down.
bool presses(const QKeyEvent& event);

// Gives the button its caption for assistive tools, and the letter that presses it together with Alt, 0 for none.
void setcaption(QAbstractButton& button, const QString& text, char accesskey);

// Whether the event was the button's access key, which then has pressed it, at once and not after a show of pressing.
bool pressedbyaccesskey(QAbstractButton& button, const QEvent& event);

} // namespace brindor::toolkit::qt
