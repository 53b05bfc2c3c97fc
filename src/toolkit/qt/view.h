#pragma once

#include "toolkit/controls.h"

#include <QObject>
#include <QWidget>

namespace brindor::toolkit::qt {

class ScreenWindow;

// One control in its window: brings the record into the widget, and what a person does with the widget to
// toolkit/user.h. Lives as long as its widget. The widget never decides anything: after each action of a person it
// shows again what the record says.
class View : public QObject {
public:
    View(ScreenWindow& window, Control& control, QWidget* widget);

    Control& control() const { return control_; }
    QWidget& widget() const { return widget_; }

    // Brings every field of the record into the widget; raises nothing.
    void bring();

    // Whether the control's text wraps, and the height in pixels that it then needs at a width to be shown whole.
    virtual bool wraps() const;
    virtual int heightfor(int width);

    // A bar that is being dragged has come over the control, or has left it.
    virtual void highlight(bool on);

protected:
    // Brings what the kind adds to a control.
    virtual void bringkind() = 0;
    bool eventFilter(QObject* watched, QEvent* event) override; // reports the coming and going of the focus
    ScreenWindow& window() const { return window_; }

private:
    void bringlook();
    void bringwords();

    ScreenWindow& window_;
    Control& control_;
    QWidget& widget_;
    bool brought_ = false;
    Colour back_;
    Colour fore_;
    Font font_;
    std::string words_;
    std::string tooltip_;
};

// Makes the view of a control and its widget inside `parent`.
View* makeview(ScreenWindow& window, Control& control, QWidget* parent);

View* makelabel(ScreenWindow& window, Label& label, QWidget* parent);
View* makebutton(ScreenWindow& window, Button& button, QWidget* parent);
View* makebar(ScreenWindow& window, Button& bar, QWidget* parent);
View* makeoptionbutton(ScreenWindow& window, OptionButton& option, QWidget* parent);
View* maketextbox(ScreenWindow& window, TextBox& box, QWidget* parent);
View* makelist(ScreenWindow& window, List& list, QWidget* parent);
View* makecombo(ScreenWindow& window, Combo& combo, QWidget* parent);
View* makeframe(ScreenWindow& window, Frame& frame, QWidget* parent);
View* makepicture(ScreenWindow& window, Picture& picture, QWidget* parent);
View* makespin(ScreenWindow& window, Spin& spin, QWidget* parent);

} // namespace brindor::toolkit::qt
