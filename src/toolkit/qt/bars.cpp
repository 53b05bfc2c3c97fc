#include "toolkit/qt/controlview.h"
#include "toolkit/qt/flatbutton.h"
#include "toolkit/qt/keys.h"
#include "toolkit/qt/screenwindow.h"
#include "toolkit/user.h"

#include <QApplication>
#include <QBasicTimer>
#include <QKeyEvent>
#include <QLabel>
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
        pressedat_ = event->position().toPoint();
        setCursor(Qt::ClosedHandCursor);
        userpress(record());
        pickedup_ = ispickedup();
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        hand_ = event->globalPosition().toPoint();
        const QPoint moved = event->position().toPoint() - pressedat_;
        if (held_ && ghost_ == nullptr && ispickedup() &&
            moved.manhattanLength() >= QApplication::startDragDistance()) {
            takealong();
        }
        follow();
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() != Qt::LeftButton || !held_) {
            return;
        }
        held_ = false;
        setCursor(Qt::OpenHandCursor);
        letgo();
        if (pickedup_ && !ispickedup()) {
            return; // put down by Escape on the way
        }
        ControlView* target = screenwindow().viewat(event->globalPosition().toPoint());
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

    // A bar that is held at the edge of a window that is too low scrolls it, also while the hand is still.
    void timerEvent(QTimerEvent* event) override
    {
        if (event->timerId() == scroller_.timerId()) {
            screenwindow().scrolltowards(hand_);
            follow();
        }
    }

private:
    bool ispickedup() const { return record().screen->dragged == &record(); }

    ScreenWindow& screenwindow() const { return *static_cast<ScreenWindow*>(window()); }

    // A lighter copy of the bar goes with the hand, and its home is dimmed.
    void takealong()
    {
        const QPixmap picture = grab();
        ghost_ = new QLabel(window());
        ghost_->setAttribute(Qt::WA_TransparentForMouseEvents); // the drop does not see it
        ghost_->setFixedSize(size());
        QPixmap lighter(picture.size());
        lighter.setDevicePixelRatio(picture.devicePixelRatio());
        lighter.fill(Qt::transparent);
        QPainter painter(&lighter);
        painter.setOpacity(0.9);
        painter.drawPixmap(0, 0, picture);
        painter.end();
        ghost_->setPixmap(lighter);
        ghost_->show();
        dim(true);
        scroller_.start(scrollperiod, this);
    }

    void follow()
    {
        if (ghost_ == nullptr || !ispickedup()) {
            letgo();
            return;
        }
        ghost_->move(window()->mapFromGlobal(hand_) - pressedat_);
        aimat(screenwindow().viewat(hand_));
    }

    void letgo()
    {
        scroller_.stop();
        delete ghost_;
        ghost_ = nullptr;
        dim(false);
        aimat(nullptr);
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

    static constexpr int scrollperiod = 30; // milliseconds

    QPointer<ControlView> aimedat_;
    QPointer<QLabel> ghost_; // goes with the window, where the screen closes in the middle of a drag
    QBasicTimer scroller_;
    QPoint pressedat_; // in the bar
    QPoint hand_;      // on the display
    bool held_ = false;
    bool pickedup_ = false; // the press picked the bar up
};

} // namespace

ControlView* makebar(Button& bar, QWidget* parent)
{
    return new ViewOf<BarWidget>(bar, parent);
}

} // namespace brindor::toolkit::qt
