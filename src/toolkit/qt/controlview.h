#pragma once

#include "toolkit/controls.h"
#include "toolkit/qt/zoom.h"

#include <QObject>
#include <QWidget>

namespace brindor::toolkit::qt {

// One control in its window: shows the record in the widget, and tells toolkit/user.h of the focus. Lives as long as
// its widget. A widget never decides anything: after each action of a person it shows again what the record says.
class ControlView : public QObject {
public:
    ControlView(Control& control, QWidget* widget);

    Control& control() const { return control_; }
    QWidget& widget() const { return widget_; }

    // Brings the widget up to date with every field of the record; raises nothing.
    void refresh();

    // The height in pixels that the text needs at a width to be shown whole; 0 where it does not wrap.
    virtual int heightfor(int width) = 0;

    // A bar that is being dragged has come over the control, or has left it.
    virtual void highlight(bool on) = 0;

protected:
    virtual void refreshkind() = 0; // what the kind adds to a control
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refreshlook();
    void refreshwords();

    Control& control_;
    QWidget& widget_;
    bool fresh_ = false; // has been refreshed before
    Colour back_;
    Colour fore_;
    Font font_;
    Zoom zoom_;
    std::string words_;
    std::string tooltip_;
};

// The view of a widget that is made of its record, shows what the kind adds in `refresh`, and tells of a person's
// actions. Where its text wraps it has `heightneeded`, where bars are dropped on it `highlight`.
template <class Widget>
class ViewOf : public ControlView {
public:
    template <class Record>
    ViewOf(Record& record, QWidget* parent) : ViewOf(new Widget(record, parent), record)
    {
    }

    int heightfor(int width) override
    {
        if constexpr (requires(Widget & widget) { widget.heightneeded(1); }) {
            return own_.heightneeded(width);
        } else {
            return 0;
        }
    }

    void highlight(bool on) override
    {
        if constexpr (requires(Widget & widget) { widget.highlight(on); }) {
            own_.highlight(on);
        }
    }

protected:
    void refreshkind() override { own_.refresh(); }

private:
    ViewOf(Widget* widget, Control& control) : ControlView(control, widget), own_(*widget) {}

    Widget& own_;
};

// Makes the view of a control and its widget inside `parent`.
ControlView* makeview(Control& control, QWidget* parent);

ControlView* makelabel(Label& label, QWidget* parent);
ControlView* makebutton(Button& button, QWidget* parent);
ControlView* makebar(Button& bar, QWidget* parent);
ControlView* makeoptionbutton(OptionButton& option, QWidget* parent);
ControlView* maketextbox(TextBox& box, QWidget* parent);
ControlView* makelist(List& list, QWidget* parent);
ControlView* makecombo(Combo& combo, QWidget* parent);
ControlView* makeframe(Frame& frame, QWidget* parent);
ControlView* makepicture(Picture& picture, QWidget* parent);
ControlView* makespin(Spin& spin, QWidget* parent);

} // namespace brindor::toolkit::qt
