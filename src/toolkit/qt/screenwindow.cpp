#include "toolkit/qt/screenwindow.h"

#include "toolkit/operations.h"
#include "toolkit/qt/access.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/canvas.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/user.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>

namespace brindor::toolkit::qt {

namespace {

// In pixels at zoom 1.
constexpr double leasttextwidth = 32; // a text is never squeezed below this
constexpr double endmargin = 8;       // between the outermost control and the edge that is scrolled to

PixelRect ofqt(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.width(), rect.height()};
}

QEvent::Type layoutevent()
{
    static const int type = QEvent::registerEventType();
    return static_cast<QEvent::Type>(type);
}

} // namespace

ScreenWindow::ScreenWindow(Screen& screen, QWidget* below)
    : QWidget(below, Qt::Window), screen_(screen), area_(new QScrollArea(this)), canvas_(new Canvas(screen))
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
    settling_.setSingleShot(true);
    connect(&settling_, &QTimer::timeout, this, [this] { reportsize(); });
    makecontrols();
    refreshscreen();
}

void ScreenWindow::makecontrols()
{
    for (Control* control : screen_.controls) {
        QWidget* parent = control->container == nullptr ? canvas_ : &views_.at(control->container)->widget();
        ControlView* view = makeview(*control, parent);
        views_.emplace(control, view);
        view->refresh();
    }
    for (Control* control : screen_.controls) {
        // A bar lies on whatever it is dropped on.
        if (isbar(*control)) {
            views_.at(control)->widget().raise();
        }
        // A label and the field that it names know each other.
        if (control->kind == Kind::label && static_cast<Label*>(control)->names != nullptr) {
            static_cast<QLabel&>(views_.at(control)->widget())
                .setBuddy(&views_.at(static_cast<Label*>(control)->names)->widget());
        }
    }
    telldrops(*this, screen_);
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
    adaptzoom();
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
    refreshgeometry();
    canvas_->update();
    requestlayout();
}

void ScreenWindow::refresh(Control& control)
{
    if (const auto view = views_.find(&control); view != views_.end()) {
        view->second->refresh();
        if (isbar(control)) {
            telldrops(*this, screen_);
        }
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

// Not on an option that answers by itself to a Space that nobody meant; one that listens to the mouse does not.
void ScreenWindow::setfirstfocus()
{
    for (const Control* control : screen_.controls) {
        QWidget& widget = views_.at(control)->widget();
        const bool answers = control->kind == Kind::optionbutton && !static_cast<const OptionButton&>(*control).press;
        const bool takesfocus = (widget.focusPolicy() & Qt::TabFocus) != 0 && !answers;
        if (takesfocus && widget.isVisibleTo(this) && widget.isEnabled()) {
            widget.setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

QWidget& ScreenWindow::widgetof(const Control& control) const
{
    return views_.at(&control)->widget();
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

void ScreenWindow::scrolltowards(QPoint global)
{
    const int y = area_->viewport()->mapFromGlobal(global).y();
    const int edge = zoom_.length(24);
    const int step = zoom_.length(12);
    QScrollBar* bar = area_->verticalScrollBar();
    bar->setValue(bar->value() + (y < edge ? -step : y >= area_->viewport()->height() - edge ? step : 0));
}

void ScreenWindow::requestlayout()
{
    if (presented_ && !layoutrequested_) {
        layoutrequested_ = true;
        QCoreApplication::postEvent(this, new QEvent(layoutevent()), Qt::HighEventPriority);
    }
}

void ScreenWindow::layoutcontrols()
{
    layoutrequested_ = false;
    const QSize viewport = area_->maximumViewportSize();
    const PixelSize seen{viewport.width(), viewport.height()};
    const Measures measures{
        [this](const Place& place) { return ofqt(zoom_.pixels(place)); },
        [this](const Control& control, int width) { return views_.at(&control)->heightfor(width); }};
    std::vector<Box> boxes = boxesof(screen_, measures);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area_->verticalScrollBar());
    arrange(boxes, seen, {zoom_.length(leasttextwidth), bar + zoom_.length(endmargin)});
    // What places itself stands in the middle where the whole window is more than its zoom could fill.
    const bool centred = !screen_.resize || (state_ == maximised && screen_.backdrop == nullptr);
    const CanvasPlan plan =
        screen_.scrolls ? plancanvas(boxes, seen, bar, zoom_.length(endmargin), centred) : CanvasPlan{seen, {}};
    canvas_->resize(plan.canvas.width, plan.canvas.height);
    put(boxes, plan.origin);
}

void ScreenWindow::put(const std::vector<Box>& boxes, PixelPoint origin)
{
    for (const Box& box : boxes) {
        const PixelRect at = box.placed.moved(origin);
        QRect rect(at.left, at.top, at.width, at.height);
        if (!screen_.scrolls && box.control->kind == Kind::picture) {
            rect = rect.intersected(canvas_->rect());
        }
        views_.at(box.control)->widget().setGeometry(rect);
        put(box.children, box.origin);
    }
}

} // namespace brindor::toolkit::qt
