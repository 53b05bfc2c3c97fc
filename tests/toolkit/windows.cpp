#include "windows.h"

#include <QApplication>

#include <stdexcept>

namespace brindor::tests {

QWidget& windowof(const toolkit::Screen& screen)
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QString::fromStdString(screen.name)) {
            return *window;
        }
    }
    throw std::out_of_range("no window " + screen.name);
}

QWidget& widgetof(const toolkit::Control& control)
{
    auto* widget = windowof(*control.screen).findChild<QWidget*>(QString::fromStdString(control.name));
    if (widget == nullptr) {
        throw std::out_of_range("no widget " + control.name);
    }
    return *widget;
}

} // namespace brindor::tests
