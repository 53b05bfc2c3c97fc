#include "story.h"
#include "windows.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QListWidget>
#include <QMessageBox>

namespace brindor::tests {

using namespace toolkit;

namespace {

// Acts with mouse and keyboard on the windows. Nothing is called on the widgets themselves: the events take the road
// through the window, where a modal window in front stops them.
QWindow* handleof(const Act& act)
{
    return windowof(act.screen).windowHandle();
}

// A line of a list, a half of a spin, else near the left edge, where no bar covers a description.
QPoint where(const Act& act)
{
    QWidget& widget = widgetof(*act.control);
    QPoint at(6, widget.height() / 2);
    if (act.control->kind == Kind::list && !act.more.empty()) {
        const auto& list = static_cast<QListWidget&>(widget);
        at = list.viewport()->mapTo(&list, list.visualItemRect(list.item(act.number())).center());
    } else if (act.control->kind == Kind::spin) {
        at = act.verb == "stepup" ? QPoint(4, 4) : QPoint(widget.width() - 4, widget.height() - 4);
    }
    return widget.mapTo(&windowof(act.screen), at);
}

void click(const Act& act)
{
    mouse(windowof(act.screen), where(act));
}

void space(const Act& act)
{
    widgetof(*act.control).setFocus(Qt::TabFocusReason);
    QTest::keyClick(handleof(act), Qt::Key_Space);
}

void type(const Act& act)
{
    mouse(windowof(act.screen), where({act.on, act.verb, act.screen, act.control, ""}));
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
    mouse(widget, {widget.width() - 6, widget.height() / 2});
    QTest::qWait(QApplication::doubleClickInterval() + 50); // a release so soon would count as the same click
    QAbstractItemView* view = widget.view();
    mouse(*view->viewport(), view->visualRect(widget.model()->index(act.number(), 0)).center());
}

void letgo(const Act& act)
{
    QTest::mouseMove(handleof(act), where(act));
    QTest::mouseRelease(handleof(act), Qt::LeftButton, {}, where(act));
}

void answer(const Act& act)
{
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    QAbstractButton* button = box->buttons().value(act.verb == "yes" ? 0 : 1); // OK is the only one
    mouse(*button, button->rect().center());
}

std::function<void(const Act&)> key(Qt::Key key)
{
    return [key](const Act& act) { QTest::keyClick(handleof(act), key); };
}

const Verbs acted = {
    {"click", click},
    {"right", [](const Act& act) { QTest::mouseClick(handleof(act), Qt::RightButton, {}, where(act)); }},
    {"space", space},
    {"alt", [](const Act& act) { QTest::keyClick(handleof(act), act.as<Button>().accesskey, Qt::AltModifier); }},
    {"type", type},
    {"pick", pick},
    {"twice", [](const Act& act) { QTest::mouseDClick(handleof(act), Qt::LeftButton, {}, where(act)); }},
    {"press", [](const Act& act) { QTest::mousePress(handleof(act), Qt::LeftButton, {}, where(act)); }},
    {"letgo", letgo},
    {"stepup", click},
    {"stepdown", click},
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

} // namespace

void play(Screen& screen, Acts acts, Verbs verbs)
{
    verbs.insert(acted.begin(), acted.end());
    std::vector<Step> steps;
    for (const Act& act : acts) {
        steps.push_back({act.on, [&](QWidget&) { verbs.at(act.verb)(act); }});
    }
    const QtHost host;
    walk([&] { showmodal(screen); }, steps);
}

} // namespace brindor::tests
