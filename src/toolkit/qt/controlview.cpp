#include "toolkit/qt/controlview.h"

#include "toolkit/qt/appearance.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/user.h"

#include <QEvent>
#include <QFocusEvent>

namespace brindor::toolkit::qt {

namespace {

// What the control says to a person who does not see it. The text of a field is its value, not its name.
const std::string& wordsof(const Control& control)
{
    static const std::string none;
    const bool field = control.kind == Kind::textbox || control.kind == Kind::combo || control.kind == Kind::list;
    return control.says.empty() && field ? none : control.says.empty() ? control.text : control.says;
}

} // namespace

ControlView::ControlView(Control& control, QWidget* widget) : QObject(widget), control_(control), widget_(*widget)
{
    widget->setObjectName(QString::fromStdString(control.name));
    widget->installEventFilter(this);
}

void ControlView::refresh()
{
    const QSignalBlocker blocked(&widget_);
    refreshlook();
    refreshwords();
    refreshkind();
    // Qt would hand the focus of a widget that goes to the next one; here nobody gets what nobody asked for.
    const bool going = !control_.visible || !control_.enabled;
    if (QWidget* focused = widget_.window()->focusWidget();
        going && focused != nullptr && (focused == &widget_ || widget_.isAncestorOf(focused))) {
        focused->clearFocus();
    }
    widget_.setEnabled(control_.enabled);
    widget_.setVisible(control_.visible);
    widget_.update();
    fresh_ = true;
}

void ControlView::refreshlook()
{
    if (!fresh_ || back_ != control_.back || fore_ != control_.fore) {
        back_ = control_.back;
        fore_ = control_.fore;
        widget_.setPalette(palettefor(control_));
    }
    if (const Zoom zoom = zoomof(widget_); !fresh_ || font_ != control_.font || zoom_ != zoom) {
        font_ = control_.font;
        zoom_ = zoom;
        widget_.setFont(qtfont(font_, zoom));
    }
}

void ControlView::refreshwords()
{
    if (const std::string& words = wordsof(control_); !fresh_ || words_ != words) {
        words_ = words;
        widget_.setAccessibleName(shown(words_));
    }
    if (tooltip_ != control_.tooltip) {
        tooltip_ = control_.tooltip;
        widget_.setToolTip(withoutmarkup(shown(tooltip_)));
    }
}

bool ControlView::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        userfocus(control_);
    } else if (event->type() == QEvent::FocusOut) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason) {
            userleave(control_);
        }
    }
    return false;
}

ControlView* makeview(Control& control, QWidget* parent)
{
    switch (control.kind) {
    case Kind::label:
        return makelabel(static_cast<Label&>(control), parent);
    case Kind::button: {
        auto& button = static_cast<Button&>(control);
        return button.bar ? makebar(button, parent) : makebutton(button, parent);
    }
    case Kind::optionbutton:
        return makeoptionbutton(static_cast<OptionButton&>(control), parent);
    case Kind::textbox:
        return maketextbox(static_cast<TextBox&>(control), parent);
    case Kind::list:
        return makelist(static_cast<List&>(control), parent);
    case Kind::combo:
        return makecombo(static_cast<Combo&>(control), parent);
    case Kind::frame:
        return makeframe(static_cast<Frame&>(control), parent);
    case Kind::picture:
        return makepicture(static_cast<Picture&>(control), parent);
    case Kind::spin:
        return makespin(static_cast<Spin&>(control), parent);
    }
    return nullptr;
}

} // namespace brindor::toolkit::qt
