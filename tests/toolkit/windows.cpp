#include "windows.h"

#include "toolkit/operations.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <stdexcept>

namespace brindor::tests {

namespace {

// Acts on the window in front, one action a tick.
class Person : public QObject {
public:
    explicit Person(std::function<void(QWidget&)> act) : act_(std::move(act)) { arm(); }

private:
    void arm()
    {
        QTimer::singleShot(1, this, [this] { next(); });
    }

    // A mouse event lets the next tick in; it waits as long as the same window is being acted on. A message that has
    // just been answered is gone from sight a little before it is over.
    void next()
    {
        arm();
        QWidget* front = QApplication::activeModalWidget();
        if (front == nullptr || front == acting_ || !front->isVisible() || !front->windowHandle()->isExposed()) {
            return;
        }
        const toolkit::Screen* screen = toolkit::topscreen();
        if (front->objectName() == "message" ||
            (screen != nullptr && front->objectName().toStdString() == screen->name)) {
            QWidget* before = std::exchange(acting_, front);
            act_(*front);
            acting_ = before;
        }
    }

    std::function<void(QWidget&)> act_;
    QWidget* acting_ = nullptr;
};

} // namespace

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

void walk(const std::function<void()>& open, std::function<void(QWidget& window)> act)
{
    const Person person(std::move(act));
    open();
}

void mouse(QWidget& window, QPoint from, QPoint to, bool letgo)
{
    const QPointer<QWindow> handle = window.windowHandle();
    QTest::mousePress(handle, Qt::LeftButton, {}, from);
    for (int step = 1; handle && step <= 4 && from != to; ++step) {
        QTest::mouseMove(handle, from + (to - from) * step / 4);
    }
    if (handle && letgo) {
        QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
    }
}

void quitbydesktop()
{
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
}

} // namespace brindor::tests
