#include "person.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"
#include "windows.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace brindor::tests {

using namespace toolkit;

namespace {

// Acts with mouse and keyboard on the windows. Nothing is called on the widgets themselves: the events take the road
// through the window, where a modal window in front stops them.
class WindowPerson : public Person {
public:
    void click(Control& control) override { clickat(control, placetoclick(control)); }
    void rightpress(OptionButton& option) override { clickat(option, placetoclick(option), Qt::RightButton); }

    void pressspace(Control& control) override
    {
        tabto(control);
        key(control, Qt::Key_Space);
    }

    void pressaltkey(Button& button) override
    {
        QTest::keyClick(windowof(*button.screen).windowHandle(), button.accesskey, Qt::AltModifier);
    }

    void type(TextBox& box, const std::string& more) override { typeinto(box, more); }
    void type(Combo& combo, const std::string& more) override { typeinto(combo, more); }
    void clickline(List& list, std::int16_t line) override { clickat(list, middleof(list, line)); }

    void doubleclickline(List& list, std::int16_t line) override
    {
        QTest::mouseDClick(windowof(*list.screen).windowHandle(), Qt::LeftButton, {},
                           inwindow(list, middleof(list, line)));
    }

    void pickline(Combo& combo, std::int16_t line) override
    {
        auto& widget = static_cast<QComboBox&>(widgetof(combo));
        clickat(combo, widget.rect().center() + QPoint(widget.width() / 2 - 6, 0)); // the arrow
        QTest::qWait(QApplication::doubleClickInterval() + 50); // a release so soon would count as the same click
        QAbstractItemView* view = widget.view();
        const QPoint middle = view->visualRect(widget.model()->index(line, 0)).center();
        QTest::mouseClick(view->window()->windowHandle(), Qt::LeftButton, {},
                          view->viewport()->mapTo(view->window(), middle));
    }

    void press(Button& bar) override
    {
        QTest::mousePress(windowof(*bar.screen).windowHandle(), Qt::LeftButton, {}, inwindow(bar, placetoclick(bar)));
    }

    void letgo(Button& bar, Control& over) override
    {
        QWindow* window = windowof(*bar.screen).windowHandle();
        const QPoint end = inwindow(over, placetoclick(over));
        QTest::mouseMove(window, end);
        QTest::mouseRelease(window, Qt::LeftButton, {}, end);
    }

    void stepup(Spin& spin) override { clickat(spin, QPoint(4, 4)); }
    void pressup(TextBox& box) override { key(box, Qt::Key_Up); }
    void enter(Screen& screen) override { QTest::keyClick(windowof(screen).windowHandle(), Qt::Key_Return); }
    void escape(Screen& screen) override { QTest::keyClick(windowof(screen).windowHandle(), Qt::Key_Escape); }
    void close(Screen& screen) override { windowof(screen).close(); }

    void resize(Screen& screen, int width, int height) override
    {
        windowof(screen).resize(width, height);
        QCoreApplication::processEvents();
    }

    void answer(bool yes) override
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) {
            const auto wanted = yes ? QMessageBox::Yes : QMessageBox::No;
            QAbstractButton* button =
                box->button(wanted) != nullptr ? box->button(wanted) : box->button(QMessageBox::Ok);
            QTest::mouseClick(box->windowHandle(), Qt::LeftButton, {}, button->mapTo(box, button->rect().center()));
        }
    }

private:
    static QPoint inwindow(Control& control, QPoint at)
    {
        return widgetof(control).mapTo(&windowof(*control.screen), at);
    }

    // Near the left edge, where no bar covers a description.
    static QPoint placetoclick(Control& control) { return {6, widgetof(control).height() / 2}; }

    static QPoint middleof(List& list, std::int16_t line)
    {
        auto& widget = static_cast<QListWidget&>(widgetof(list));
        return widget.viewport()->mapTo(&widget, widget.visualItemRect(widget.item(line)).center());
    }

    // The press may end the screen, and then nobody lets go of anything in it.
    static void clickat(Control& control, QPoint at, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPointer<QWindow> window = windowof(*control.screen).windowHandle();
        const QPoint where = inwindow(control, at);
        QTest::mousePress(window, button, {}, where);
        if (window != nullptr) {
            QTest::mouseRelease(window, button, {}, where);
        }
    }

    static void key(Control& control, Qt::Key key) { QTest::keyClick(windowof(*control.screen).windowHandle(), key); }

    // The shorter way, so that nothing else is passed.
    static void tabto(Control& control)
    {
        const std::vector<Control*>& order = control.screen->controls;
        const auto wanted = std::find(order.begin(), order.end(), &control);
        const auto from = std::find(order.begin(), order.end(), control.screen->focus);
        for (std::size_t i = 0; i < order.size() && !widgetof(control).hasFocus(); ++i) {
            key(control, from < wanted ? Qt::Key_Tab : Qt::Key_Backtab);
        }
    }

    template <class Field>
    static void typeinto(Field& field, const std::string& more)
    {
        QWindow* window = windowof(*field.screen).windowHandle();
        clickat(field, placetoclick(field));
        QTest::keyClick(window, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClick(window, Qt::Key_End);
        for (const char letter : more) {
            QTest::keyClick(window, letter);
        }
    }
};

// The next act is armed before one is done, since an act can open a screen and wait in it. An act that only waits
// for its own events is not interrupted.
class WindowStage : public Stage {
public:
    void play(Screen& screen, Story story) override
    {
        story_ = std::move(story);
        arm();
        showmodal(screen);
        EXPECT_TRUE(story_.empty()) << story_.size() << " acts left";
        story_.clear();
    }

private:
    void arm()
    {
        QTimer::singleShot(1, &timers_, [this] { next(); });
    }

    void next()
    {
        if (story_.empty()) {
            return;
        }
        const QWidget* front = QApplication::activeModalWidget();
        // A click on a window that is not yet exposed would be lost.
        const bool shown = front != nullptr && front->isVisible() && front->windowHandle()->isExposed();
        // A message that has just been answered is gone from sight a little before it is over.
        const std::string& on = story_.front().on;
        const bool usable = on == "message" || (topscreen() != nullptr && topscreen()->name == on);
        const bool expected = shown && usable && front->objectName() == QString::fromStdString(on);
        const bool busy = !acting_.empty() && acting_.back() == front; // the act before is not over
        const bool ready = expected && !busy;
        if (!ready) {
            if (!waited_.isValid()) {
                waited_.start();
            }
            if (waited_.elapsed() > patience) {
                ADD_FAILURE() << "no window for the act on " << story_.front().on;
                QEvent quit(QEvent::Quit);
                QCoreApplication::sendEvent(qApp, &quit);
                return;
            }
            arm();
            return;
        }
        waited_.invalidate();
        const Act act = std::move(story_.front());
        story_.pop_front();
        arm();
        acting_.push_back(front);
        act.what(person_);
        acting_.pop_back();
    }

    static constexpr qint64 patience = 15000; // milliseconds
    QtHost host_;
    WindowPerson person_;
    QObject timers_;
    Story story_;
    std::vector<const QWidget*> acting_; // the windows in front when the acts in progress began
    QElapsedTimer waited_;
};

} // namespace

std::unique_ptr<Stage> windowstage()
{
    return std::make_unique<WindowStage>();
}

} // namespace brindor::tests
