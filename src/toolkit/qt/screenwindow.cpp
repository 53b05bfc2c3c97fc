#include "toolkit/qt/screenwindow.h"

#include "toolkit/qt/appearance.h"
#include "toolkit/qt/canvas.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/twips.h"
#include "toolkit/user.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QTimer>

#include <utility>

namespace brindor::toolkit::qt {

namespace {

QEvent::Type layoutevent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

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

ScreenWindow::ScreenWindow(Screen& screen, QWidget* below)
    : QWidget(below, Qt::Window), screen_(screen), area_(new QScrollArea(this)), canvas_(new Canvas(screen)),
      displaycorner_(QWidget::screen()->geometry().topLeft())
{
    setObjectName(QString::fromStdString(screen.name));
    setWindowModality(Qt::ApplicationModal);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setFocusPolicy(Qt::NoFocus);
    area_->setWidget(canvas_);
    if (!screen.scrolls) {
        area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        area_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    }
    for (Control* control : screen.controls) {
        QWidget* parent = control->container == nullptr ? canvas_ : &views_.at(control->container)->widget();
        ControlView* view = makeview(*control, parent);
        views_.emplace(control, view);
        view->refresh();
    }
    // A bar lies on whatever it is dropped on.
    for (Control* control : screen.controls) {
        if (control->kind == Kind::button && static_cast<Button*>(control)->bar) {
            views_.at(control)->widget().raise();
        }
    }
    refreshscreen();
    refreshplace();
    resize(size_.give(screen.width, screen.height));
}

void ScreenWindow::present()
{
    if (state_ == maximised) {
        setWindowState(Qt::WindowMaximized);
    }
    layoutcontrols();
    setfirstfocus();
    show();
    raise();
    activateWindow();
    presented_ = true;
    reportsize();
}

void ScreenWindow::run()
{
    if (!screen_.closed) {
        loop_.exec();
    }
}

void ScreenWindow::endrun()
{
    loop_.exit();
}

void ScreenWindow::refreshscreen()
{
    if (screen_.closed) {
        endrun();
        return;
    }
    // Without any caption Qt would show the program's name.
    setWindowTitle(screen_.caption.empty() ? QStringLiteral(" ") : shown(screen_.caption));
    QPalette palette(qtcolour(screen_.back), qtcolour(screen_.back));
    if (area_->palette().color(QPalette::Window) != palette.color(QPalette::Window)) {
        area_->setPalette(palette);
    }
    if (state_ != shownstate(screen_.windowstate)) {
        state_ = shownstate(screen_.windowstate);
        if (presented_) {
            setWindowState(state_ == maximised ? Qt::WindowMaximized : Qt::WindowNoState);
        }
    }
    const bool movable = !presented_ || windowState() == Qt::WindowNoState; // else it would leave its state
    if (movable && (left_ != screen_.left || top_ != screen_.top)) {
        refreshplace();
    }
    if (movable && (width_ != screen_.width || height_ != screen_.height)) {
        width_ = screen_.width;
        height_ = screen_.height;
        resize(size_.give(width_, height_));
    }
    canvas_->update();
    requestlayout();
}

void ScreenWindow::refreshplace()
{
    left_ = screen_.left;
    top_ = screen_.top;
    move(displaycorner_ + QPoint(pixels(left_), pixels(top_)));
}

void ScreenWindow::refresh(Control& control)
{
    if (const auto view = views_.find(&control); view != views_.end()) {
        view->second->refresh();
        requestlayout();
    }
}

void ScreenWindow::focus(Control& control)
{
    const auto view = views_.find(&control);
    if (view == views_.end()) {
        return;
    }
    QWidget& widget = view->second->widget();
    if (!widget.hasFocus() && widget.focusPolicy() != Qt::NoFocus) {
        widget.setFocus(Qt::OtherFocusReason);
        area_->ensureWidgetVisible(&widget, 0, 0);
    }
}

// The option buttons are left out: a Space that nobody meant would answer with one.
void ScreenWindow::setfirstfocus()
{
    for (const Control* control : screen_.controls) {
        QWidget& widget = views_.at(control)->widget();
        const bool takesfocus = (widget.focusPolicy() & Qt::TabFocus) != 0 && control->kind != Kind::optionbutton;
        if (takesfocus && widget.isVisibleTo(this) && widget.isEnabled()) {
            widget.setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

ControlView* ScreenWindow::viewat(QPoint global) const
{
    for (const QWidget* at = childAt(mapFromGlobal(global)); at != nullptr && at != this; at = at->parentWidget()) {
        for (const auto& [control, view] : views_) {
            if (&view->widget() == at) {
                return view;
            }
        }
    }
    return nullptr;
}

bool ScreenWindow::event(QEvent* event)
{
    if (event->type() == layoutevent()) {
        layoutcontrols();
        return true;
    }
    if (event->type() == QEvent::WindowActivate) {
        learnframe(*this);
    }
    return QWidget::event(event);
}

void ScreenWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    userclose(screen_);
}

void ScreenWindow::keyPressEvent(QKeyEvent* event)
{
    const bool held = event->isAutoRepeat();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        event->setAccepted(!held && userreturn(screen_));
        break;
    case Qt::Key_Escape:
        event->setAccepted(!held && userescape(screen_));
        break;
    case Qt::Key_PageUp:
        turnpage(-1);
        break;
    case Qt::Key_PageDown:
        turnpage(1);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void ScreenWindow::turnpage(int direction)
{
    QScrollBar* bar = area_->verticalScrollBar();
    bar->setValue(bar->value() + direction * bar->pageStep());
}

void ScreenWindow::resizeEvent(QResizeEvent* /*event*/)
{
    area_->setGeometry(rect());
    reportsize();
    layoutcontrols();
}

void ScreenWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange) {
        reportsize();
    }
    QWidget::changeEvent(event);
}

// The window system tells a size again that has not changed, and our own sizes as well: neither is a person's doing.
// Size and state come one after the other and in no fixed order, so a normal window as large as the display is looked
// at again a little later: it may be on its way to the maximised state, or from it.
void ScreenWindow::reportsize()
{
    if (!presented_ || screen_.closed) {
        return;
    }
    const std::int16_t state = stateof(windowState());
    if (state == normal && !std::exchange(waited_, false) && fillsdisplay()) {
        waited_ = true;
        QTimer::singleShot(100, this, [this] { reportsize(); });
        return;
    }
    const Size now = state == minimised ? Size{width_, height_} : size_.outer(size());
    if (state == state_ && now.width == width_ && now.height == height_) {
        return;
    }
    state_ = state;
    width_ = now.width;
    height_ = now.height;
    userresize(screen_, width_, height_, state_);
}

bool ScreenWindow::fillsdisplay() const
{
    constexpr int titlebar = 64; // the most that one takes
    const QSize display = QWidget::screen()->availableSize();
    return width() >= display.width() && height() + titlebar >= display.height();
}

void ScreenWindow::requestlayout()
{
    if (presented_ && !layoutrequested_) {
        layoutrequested_ = true;
        QCoreApplication::postEvent(this, new QEvent(layoutevent()), Qt::HighEventPriority);
    }
}

std::vector<Box> ScreenWindow::boxesin(const Frame* container) const
{
    std::vector<Box> boxes;
    for (const Control* control : screen_.controls) {
        if (control->container != container) {
            continue;
        }
        ControlView* view = views_.at(control);
        Box& box = boxes.emplace_back();
        box.control = control;
        box.record = pixels(control->place);
        box.visible = control->visible;
        if (control->kind == Kind::frame) {
            const auto& frame = static_cast<const Frame&>(*control);
            box.container = true;
            box.counts = frame.border;
            box.children = boxesin(&frame);
        } else if (view->wraps()) {
            box.heightfor = [view](int width) { return view->heightfor(width); };
        }
    }
    return boxes;
}

void ScreenWindow::layoutcontrols()
{
    layoutrequested_ = false;
    const QSize seen = area_->maximumViewportSize();
    std::vector<Box> boxes = boxesin(nullptr);
    arrange(boxes, seen);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area_->verticalScrollBar());
    const CanvasPlan plan = screen_.scrolls ? plancanvas(boxes, seen, bar, !screen_.resize) : CanvasPlan{seen, {}};
    canvas_->resize(plan.canvas);
    put(boxes, plan.origin);
}

void ScreenWindow::put(const std::vector<Box>& boxes, QPoint origin)
{
    for (const Box& box : boxes) {
        QRect rect = box.placed.translated(origin);
        if (!screen_.scrolls && box.control->kind == Kind::picture) {
            rect = rect.intersected(canvas_->rect());
        }
        views_.at(box.control)->widget().setGeometry(rect);
        put(box.children, box.origin);
    }
}

} // namespace brindor::toolkit::qt
