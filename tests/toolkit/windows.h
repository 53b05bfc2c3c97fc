#pragma once

#include "toolkit/controls.h"

#include <QWidget>

namespace brindor::tests {

// The window of a screen and the widget of a control, found by their object names as any test tool finds them.
// Throw where there is none.
QWidget& windowof(const toolkit::Screen& screen);
QWidget& widgetof(const toolkit::Control& control);

} // namespace brindor::tests
