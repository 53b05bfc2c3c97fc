#include "toolkit/qt/flatbutton.h"
#include "toolkit/qt/screenwindow.h"
#include "toolkit/qt/view.h"
#include "toolkit/user.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

namespace brindor::toolkit::qt {

namespace {

// The mouse grab that a press gives carries the whole drag: the bar sees the moves and the release wherever they are.
class BarWidget : public FlatButton {
public:
    BarWidget(ScreenWindow& window, Button& bar, QWidget* parent) : FlatButton(bar, parent), window_(window)
    {
        setCursor(Qt::OpenHandCursor);
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

    void mouseMoveEvent(QMouseEvent* event) override
    {
        aimat(held_ && ispickedup() ? window_.viewat(event->globalPosition().toPoint()) : nullptr);
    }

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
        View* target = window_.viewat(event->globalPosition().toPoint());
        if (target != nullptr && &target->widget() == this) {
            userclick(record());
        } else if (!isdroptarget(target) || !userdrop(static_cast<Label&>(target->control()))) {
            userdropnowhere(*record().screen);
        }
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (ScreenWindow::presses(*event)) {
            userclick(record());
        } else {
            FlatButton::keyPressEvent(event);
        }
    }

    void keyReleaseEvent(QKeyEvent* event) override { event->ignore(); }

private:
    bool ispickedup() const { return record().screen->dragged == &record(); }

    static bool isdroptarget(const View* view)
    {
        return view != nullptr && view->control().kind == Kind::label &&
               static_cast<const Label&>(view->control()).drop && view->widget().isEnabled();
    }

    void aimat(View* view)
    {
        View* target = isdroptarget(view) ? view : nullptr;
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

    ScreenWindow& window_;
    QPointer<View> aimedat_;
    bool held_ = false;
    bool pickedup_ = false; // the press picked the bar up
};

class BarView : public View {
public:
    BarView(ScreenWindow& window, Button& bar, BarWidget* widget)
        : View(window, bar, widget), bar_(bar), widget_(*widget)
    {
    }
    bool wraps() const override { return true; }
    int heightfor(int width) override { return widget_.heightneeded(width); }

protected:
    void bringkind() override
    {
        widget_.bring();
        const bool pickedup = bar_.screen->dragged == &bar_;
        widget_.setAccessibleDescription(pickedup ? "picked up" : "");
        if (pickedup) {
            widget_.raise(); // it will lie on top of the bars that were dropped before
        }
    }

private:
    Button& bar_;
    BarWidget& widget_;
};

} // namespace

View* makebar(ScreenWindow& window, Button& bar, QWidget* parent)
{
    return new BarView(window, bar, new BarWidget(window, bar, parent));
}

} // namespace brindor::toolkit::qt
