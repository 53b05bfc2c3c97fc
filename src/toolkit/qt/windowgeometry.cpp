#include "toolkit/qt/controlview.h"
#include "toolkit/qt/screenwindow.h"
#include "toolkit/user.h"

#include <QEvent>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>
#include <utility>

namespace brindor::toolkit::qt {

namespace {

constexpr int settlingtime = 250; // milliseconds

std::int16_t stateof(Qt::WindowStates states)
{
    if (states.testFlag(Qt::WindowMinimized)) {
        return minimised;
    }
    return (states & (Qt::WindowMaximized | Qt::WindowFullScreen)) != 0 ? maximised : normal;
}

// A window that was minimised when its state was remembered comes back as a normal one.
std::int16_t shownstate(std::int16_t state)
{
    return state == maximised ? maximised : normal;
}

} // namespace

// Brings state, place and size of the record to the window. One that is not in its normal state would leave it.
void ScreenWindow::refreshgeometry()
{
    if (state_ != shownstate(screen_.windowstate)) {
        state_ = shownstate(screen_.windowstate);
        if (presented_) {
            setWindowState(state_ == maximised ? Qt::WindowMaximized : Qt::WindowNoState);
        }
    }
    if (presented_ && !isnormal()) {
        return;
    }
    const bool resized = width_ != screen_.width || height_ != screen_.height;
    const bool moved = left_ != screen_.left || top_ != screen_.top;
    if (resized) {
        width_ = screen_.width;
        height_ = screen_.height;
        normal_ = {width_, height_};
        givesize();
    }
    if (moved || (resized && !presented_)) {
        giveplace();
    }
}

void ScreenWindow::givesize()
{
    resize(size_.give(normal_, workarea().size()));
}

// A window that was made smaller for the display stands round the same middle.
void ScreenWindow::giveplace()
{
    left_ = screen_.left;
    top_ = screen_.top;
    const Zoom zoom = basezoom();
    standround(workarea().topLeft() +
               QPoint(zoom.pixels(left_ + screen_.width / 2), zoom.pixels(top_ + screen_.height / 2)));
}

// Puts the window, with frame and title bar, as near to a place as the work area lets it.
void ScreenWindow::standround(QPoint middle)
{
    middle_ = middle;
    moved_.start();
    const QMargins frame = framemargins();
    const QSize outer = size().grownBy(frame);
    const QRect room = workarea();
    const QPoint corner = middle - QPoint(outer.width() / 2, outer.height() / 2);
    const QPoint last = room.bottomRight() + QPoint(1, 1) - QPoint(outer.width(), outer.height());
    move(std::clamp(corner.x(), room.left(), std::max(room.left(), last.x())),
         std::clamp(corner.y(), room.top(), std::max(room.top(), last.y())));
}

void ScreenWindow::rezoom()
{
    settle();
    if (isnormal()) {
        givesize();
        standround(middle_);
    }
    adaptzoom();
    layoutcontrols();
}

// Quick changes bring late reports of older sizes: none counts until all is quiet, and then the one in force.
void ScreenWindow::settle()
{
    settling_.start(settlingtime);
}

// A maximised window shows its contents as large as its size in the normal state fills it, and never smaller than the
// others: a zoom chosen by hand counts.
void ScreenWindow::adaptzoom()
{
    Zoom wanted = basezoom();
    if (isMaximized()) {
        const Zoom filling = size_.filling(normal_, size());
        wanted = Zoom(std::max(wanted.factor(), filling.factor()));
    }
    if (wanted == zoom_) {
        return;
    }
    zoom_ = wanted;
    for (const auto& [control, view] : views_) {
        view->refresh();
    }
}

void ScreenWindow::resizeEvent(QResizeEvent* /*event*/)
{
    area_->setGeometry(rect());
    adaptzoom();
    reportsize();
    layoutcontrols();
}

void ScreenWindow::moveEvent(QMoveEvent* /*event*/)
{
    const bool ours = settling_.isActive() || (moved_.isValid() && moved_.elapsed() < settlingtime);
    if (presented_ && !ours && isnormal() && !fillsdisplay()) {
        middle_ = frameGeometry().center();
    }
}

void ScreenWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) {
        adaptzoom();
        reportsize();
        requestlayout();
    }
    QWidget::changeEvent(event);
}

// The window system tells a size again that has not changed, and our own sizes as well: neither is a person's doing.
// Size and state come one after the other and in no fixed order, so a normal window as large as the display is looked
// at again a little later: it may be on its way to the maximised state, or from it.
void ScreenWindow::reportsize()
{
    const std::int16_t state = stateof(windowState());
    const bool quiet = !settling_.isActive() || state == minimised; // a minimised window tells no size
    if (!presented_ || screen_.closed || !quiet) {
        return;
    }
    if (state == normal && !std::exchange(waited_, false) && fillsdisplay()) {
        waited_ = true;
        QTimer::singleShot(100, this, [this] { reportsize(); });
        return;
    }
    if (state == normal && state_ == maximised) {
        // What the window system gives back is a size of the zoom that was in force then.
        settle();
        givesize();
        standround(middle_);
        layoutcontrols();
    }
    const Size now = state == minimised ? Size{width_, height_} : size_.outer(size(), zoom_);
    if (state == state_ && now.width == width_ && now.height == height_) {
        return;
    }
    state_ = state;
    width_ = now.width;
    height_ = now.height;
    if (state == normal) {
        normal_ = now;
    }
    userresize(screen_, width_, height_, state_);
}

bool ScreenWindow::fillsdisplay() const
{
    constexpr int titlebar = 64; // the most that one takes
    const QSize display = workarea().size();
    return width() >= display.width() && height() + titlebar >= display.height();
}

bool ScreenWindow::isnormal() const
{
    return windowState() == Qt::WindowNoState;
}

QRect ScreenWindow::workarea() const
{
    return QWidget::screen()->availableGeometry();
}

} // namespace brindor::toolkit::qt
