#include "windows.h"

#include <QMetaEnum>
#include <QPointer>
#include <QTimer>

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

QWidget& widgetin(QWidget& window, const std::string& name)
{
    auto* widget = window.findChild<QWidget*>(QString::fromStdString(name));
    return widget != nullptr ? *widget : throw std::out_of_range("no widget " + name);
}

QWidget& widgetof(const toolkit::Control& control)
{
    return widgetin(windowof(*control.screen), control.name);
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

// A mouse event lets the next tick in; it waits as long as the same window is being acted on. A message that has just
// been answered is gone from sight a little before it is over.
void walk(const std::function<void()>& open, const std::function<void(QWidget& window)>& act)
{
    const QObject person; // no tick outlives it
    QWidget* acting = nullptr;
    const std::function<void()> tick = [&] {
        QTimer::singleShot(1, &person, tick);
        QWidget* front = QApplication::activeModalWidget();
        if (front == nullptr || front == acting || !front->isVisible()) {
            return;
        }
        if (!front->windowHandle()->isExposed()) {
            if (front->isMinimized()) { // on a real display, where a person brings it back
                front->showNormal();
            }
            return;
        }
        const toolkit::Screen* screen = toolkit::topscreen();
        if (front->objectName().toStdString() == (screen == nullptr ? "message" : screen->name)) {
            QWidget* before = std::exchange(acting, front);
            act(*front);
            acting = before;
        }
    };
    QTimer::singleShot(1, &person, tick);
    open();
}

void walk(const std::function<void()>& open, const std::vector<Step>& steps)
{
    std::size_t done = 0;
    int waited = 0;
    walk(open, [&](QWidget& front) {
        constexpr int patience = 5000;
        if (done == steps.size()) {
            front.close();
        } else if (front.objectName().toStdString() == steps[done].window) {
            steps[done++].act(front);
        } else if (++waited > patience) {
            ADD_FAILURE() << steps[done].window << " did not come";
            done = steps.size();
        }
    });
    EXPECT_EQ(done, steps.size()) << "the last steps found no window";
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

void mouse(QWidget& widget, QPoint at)
{
    const QPoint inwindow = widget.mapTo(widget.window(), at);
    mouse(*widget.window(), inwindow, inwindow);
}

std::string told(QWidget& widget)
{
    QAccessibleInterface& about = *QAccessible::queryAccessibleInterface(&widget);
    const auto add = [](const char* mark, const QString& text) {
        return text.isEmpty() ? "" : mark + text.toStdString();
    };
    const auto related = [&about](QAccessible::Relation kind) {
        QString names;
        for (const auto& [other, relation] : about.relations(kind)) {
            names += other->text(QAccessible::Name);
        }
        return names;
    };
    const QAccessible::State state = about.state();
    return QMetaEnum::fromType<QAccessible::Role>().valueToKey(about.role()) +
           (" '" + about.text(QAccessible::Name).toStdString()) + '\'' + add(" = ", about.text(QAccessible::Value)) +
           add(": ", about.text(QAccessible::Description)) + (state.checked ? " checked" : "") +
           (state.disabled ? " disabled" : "") + (state.invisible ? " invisible" : "") + (state.modal ? " modal" : "") +
           add(" < ", related(QAccessible::Label)) + add(" > ", related(QAccessible::Labelled));
}

void quitbydesktop()
{
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
}

} // namespace brindor::tests
