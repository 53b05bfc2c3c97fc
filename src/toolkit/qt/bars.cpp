#include "toolkit/qt/controlview.h"
#include "toolkit/qt/flatbutton.h"
#include "toolkit/qt/keys.h"
#include "toolkit/qt/screenwindow.h"
#include "toolkit/user.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace brindor::toolkit::qt {

namespace {

// The mouse grab that a press gives carries the whole drag: the bar sees the moves and the release wherever they are.
class BarWidget : public FlatButton {
public:
    BarWidget(Button& bar, QWidget* parent) : FlatButton(bar, parent) { setCursor(Qt::OpenHandCursor); }

    void refresh()
    {
        FlatButton::refresh();
        setAccessibleDescription(ispickedup() ? "picked up" : "");
        if (ispickedup()) {
            raise(); // it will lie on top of the bars that were dropped before
        }
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton) {
            return;
        }
        held_ = true;
        setCursor(Qt::ClosedHandCursor);
        userpress(record());
        pickedup_ = ispickedup();
    }

    void mouseMoveEvent(QMouseEvent* event) override { aimat(held_ && ispickedup() ? viewunder(*event) : nullptr); }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton || !held_) {
            return;
        }
        held_ = false;
        setCursor(Qt::OpenHandCursor);
        aimat(nullptr);
        if (pickedup_ && !ispickedup()) {
            return; // put down by Escape on the way
        }
        ControlView* target = viewunder(*event);
        if (target != nullptr && &target->widget() == this) {
            userclick(record());
        } else if (!isdroptarget(target) || !userdrop(static_cast<Label&>(target->control()))) {
            userdropnowhere(*record().screen);
        }
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (presses(*event)) {
            userclick(record());
        } else {
            FlatButton::keyPressEvent(event);
        }
    }

    void keyReleaseEvent(QKeyEvent* event) override { event->ignore(); }

private:
    bool ispickedup() const { return record().screen->dragged == &record(); }

    ControlView* viewunder(const QMouseEvent& event) const
    {
        return static_cast<ScreenWindow*>(window())->viewat(event.globalPosition().toPoint());
    }

    static bool isdroptarget(const ControlView* view)
    {
        return view != nullptr && view->control().kind == Kind::label &&
               static_cast<const Label&>(view->control()).drop && view->widget().isEnabled();
    }

    void aimat(ControlView* view)
    {
        ControlView* target = isdroptarget(view) ? view : nullptr;
        if (aimedat_ == target) {
            return;
        }
        if (aimedat_ != nullptr) {
            aimedat_->highlight(false);
        }
        aimedat_ = target;
        if (target != nullptr) {
            target->highlight(true);
        }
    }

    QPointer<ControlView> aimedat_;
    bool held_ = false;
    bool pickedup_ = false; // the press picked the bar up
};

} // namespace

ControlView* makebar(Button& bar, QWidget* parent)
{
    return new ViewOf<BarWidget>(bar, parent);
}

} // namespace brindor::toolkit::qt
