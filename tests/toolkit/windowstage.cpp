#include "story.h"
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

namespace brindor::tests {

using namespace toolkit;

namespace {

// Acts with mouse and keyboard on the windows. Nothing is called on the widgets themselves: the events take the road
// through the window, where a modal window in front stops them.
QWindow* handleof(const Act& act)
{
    return windowof(act.on == "message" || act.control == nullptr ? act.screen : *act.control->screen).windowHandle();
}

QPoint middleof(QListWidget& list, int line)
{
    return list.viewport()->mapTo(&list, list.visualItemRect(list.item(line)).center());
}

// A line of a list, else near the left edge, where no bar covers a description, or in the upper half of a spin.
QPoint where(const Act& act)
{
    QWidget& widget = widgetof(*act.control);
    const auto at = act.control->kind == Kind::list && !act.more.empty()
                        ? middleof(static_cast<QListWidget&>(widget), act.number())
                        : QPoint(6, widget.height() / 2);
    return widget.mapTo(&windowof(act.screen), at);
}

// The press may end the screen, and then nobody lets go of anything in it.
void clickat(const QPointer<QWindow>& window, QPoint at, Qt::MouseButton button = Qt::LeftButton)
{
    QTest::mousePress(window, button, {}, at);
    if (window != nullptr) {
        QTest::mouseRelease(window, button, {}, at);
    }
}

void click(const Act& act)
{
    clickat(handleof(act), where(act));
}

// Tabs to the control, the shorter way, so that nothing else is passed.
void space(const Act& act)
{
    const std::vector<Control*>& order = act.screen.controls;
    const auto wanted = std::find(order.begin(), order.end(), act.control);
    const auto from = std::find(order.begin(), order.end(), act.screen.focus);
    for (std::size_t i = 0; i < order.size() && !widgetof(*act.control).hasFocus(); ++i) {
        QTest::keyClick(handleof(act), from < wanted ? Qt::Key_Tab : Qt::Key_Backtab);
    }
    QTest::keyClick(handleof(act), Qt::Key_Space);
}

void type(const Act& act)
{
    clickat(handleof(act), where({act.on, act.verb, act.screen, act.control, ""}));
    QTest::keyClick(handleof(act), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(handleof(act), Qt::Key_End);
    for (const char letter : act.more) {
        QTest::keyClick(handleof(act), letter);
    }
}

void pick(const Act& act)
{
    if (act.control->kind != Kind::combo) {
        return click(act);
    }
    auto& widget = static_cast<QComboBox&>(widgetof(*act.control));
    clickat(handleof(act), widget.mapTo(&windowof(act.screen), QPoint(widget.width() - 6, widget.height() / 2)));
    QTest::qWait(QApplication::doubleClickInterval() + 50); // a release so soon would count as the same click
    QAbstractItemView* view = widget.view();
    const QPoint middle = view->visualRect(widget.model()->index(act.number(), 0)).center();
    clickat(view->window()->windowHandle(), view->viewport()->mapTo(view->window(), middle));
}

void step(const Act& act)
{
    QWidget& spin = widgetof(*act.control);
    const QPoint half = act.verb == "stepup" ? QPoint(4, 4) : QPoint(spin.width() - 4, spin.height() - 4);
    clickat(handleof(act), spin.mapTo(&windowof(act.screen), half));
}

void letgo(const Act& act)
{
    QTest::mouseMove(handleof(act), where(act));
    QTest::mouseRelease(handleof(act), Qt::LeftButton, {}, where(act));
}

void answer(const Act& act)
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    const auto wanted = act.verb == "yes" ? QMessageBox::Yes : QMessageBox::No;
    const QAbstractButton* button = box->button(wanted) != nullptr ? box->button(wanted) : box->button(QMessageBox::Ok);
    clickat(box->windowHandle(), button->mapTo(box, button->rect().center()));
}

std::function<void(const Act&)> key(Qt::Key key)
{
    return [key](const Act& act) { QTest::keyClick(handleof(act), key); };
}

const Verbs acted = {
    {"click", click},
    {"right", [](const Act& act) { clickat(handleof(act), where(act), Qt::RightButton); }},
    {"space", space},
    {"alt", [](const Act& act) { QTest::keyClick(handleof(act), act.as<Button>().accesskey, Qt::AltModifier); }},
    {"type", type},
    {"pick", pick},
    {"twice", [](const Act& act) { QTest::mouseDClick(handleof(act), Qt::LeftButton, {}, where(act)); }},
    {"press", [](const Act& act) { QTest::mousePress(handleof(act), Qt::LeftButton, {}, where(act)); }},
    {"letgo", letgo},
    {"stepup", step},
    {"stepdown", step},
    {"up", key(Qt::Key_Up)},
    {"return", key(Qt::Key_Return)},
    {"escape", key(Qt::Key_Escape)},
    {"close", [](const Act& act) { windowof(act.screen).close(); }},
    {"resize",
     [](const Act& act) {
         windowof(act.screen).resize(act.number(), windowof(act.screen).height());
         QCoreApplication::processEvents();
     }},
    {"yes", answer},
    {"no", answer},
};

// The next act is armed before one is done, since an act can open a screen and wait in it. An act that only waits
// for its own events is not interrupted.
class WindowStage : public Stage {
public:
    explicit WindowStage(Verbs verbs) : verbs_(std::move(verbs)) { verbs_.insert(acted.begin(), acted.end()); }

    void play(Screen& screen, Acts acts) override
    {
        acts_ = std::move(acts);
        arm();
        showmodal(screen);
        EXPECT_TRUE(acts_.empty()) << acts_.size() << " acts left";
        acts_.clear();
    }

private:
    void arm()
    {
        QTimer::singleShot(1, &timers_, [this] { next(); });
    }

    // A click on a window that is not yet exposed would be lost, and a message that has just been answered is gone
    // from sight a little before it is over.
    bool isready(const QWidget* front) const
    {
        const std::string& on = acts_.front().on;
        return front != nullptr && front->isVisible() && front->windowHandle()->isExposed() &&
               (on == "message" || (topscreen() != nullptr && topscreen()->name == on)) &&
               front->objectName().toStdString() == on && (acting_.empty() || acting_.back() != front);
    }

    void next()
    {
        if (acts_.empty()) {
            return;
        }
        const QWidget* front = QApplication::activeModalWidget();
        if (isready(front)) {
            waited_.invalidate();
            const Act act = acts_.front();
            acts_.pop_front();
            arm();
            acting_.push_back(front);
            verbs_.at(act.verb)(act);
            acting_.pop_back();
            return;
        }
        if (!waited_.isValid()) {
            waited_.start();
        }
        if (waited_.elapsed() > patience) {
            ADD_FAILURE() << "no window for " << acts_.front().verb << " on " << acts_.front().on;
            quitbydesktop();
        } else {
            arm();
        }
    }

    static constexpr qint64 patience = 15000; // milliseconds
    Verbs verbs_;
    QtHost host_;
    QObject timers_;
    Acts acts_;
    std::vector<const QWidget*> acting_; // the windows in front when the acts in progress began
    QElapsedTimer waited_;
};

} // namespace

std::unique_ptr<Stage> makestage(const Verbs& own)
{
    return std::make_unique<WindowStage>(own);
}

} // namespace brindor::tests
