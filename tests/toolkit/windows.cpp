#include "windows.h"

#include "toolkit/operations.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

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

void showwhile(toolkit::Screen& screen, const std::function<void()>& act)
{
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&windowof(screen)));
        act();
        toolkit::closescreen(screen);
    });
    toolkit::showmodal(screen);
}

void quitbydesktop()
{
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
}

} // namespace brindor::tests
