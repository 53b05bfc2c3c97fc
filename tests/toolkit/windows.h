#pragma once

#include "toolkit/controls.h"

#include <QWidget>

#include <functional>

namespace brindor::tests {

// The window of a screen and the widget of a control, found by their object names as any test tool finds them.
// Throw where there is none.
QWidget& windowof(const toolkit::Screen& screen);
QWidget& widgetof(const toolkit::Control& control);

// Shows the screen, does the act in its window as soon as that is seen, and closes it.
void showwhile(toolkit::Screen& screen, const std::function<void()>& act);

// The desktop asks the program to end.
void quitbydesktop();

} // namespace brindor::tests
