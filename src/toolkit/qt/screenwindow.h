#pragma once

#include "toolkit/controls.h"
#include "toolkit/layout.h"
#include "toolkit/qt/windowsize.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <QWidget>

#include <unordered_map>
#include <vector>

class QKeyEvent;
class QScrollArea;

namespace brindor::toolkit::qt {

class Canvas;
class ControlView;

// The window of one screen: shows its controls where the layout puts them, scrolls where they do not fit, and tells
// toolkit/user.h of its keys, its size and its close control. It goes when the record has closed, never by itself.
class ScreenWindow : public QWidget {
public:
    // `below` is the window that it stands in front of, none for the first.
    ScreenWindow(Screen& screen, QWidget* below);

    Screen& screen() const { return screen_; }
    Zoom zoom() const { return zoom_; }
    void present(); // shows the window, complete and in its place
    void run();     // returns when the screen has closed, or at endrun
    void endrun();
    void rezoom();                  // the base zoom has changed
    void refreshscreen();           // the screen's own fields have changed
    void refresh(Control& control); // a control's fields have changed
    void focus(Control& control);   // the control has got the focus
    QWidget& widgetof(const Control& control) const;
    ControlView* viewat(QPoint global) const; // of the control that is seen at a place of the display; none elsewhere

    // Scrolls by a little where a place of the display lies at the upper or lower edge of what is seen, or beyond it.
    void scrolltowards(QPoint global);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    // screenwindow.cpp: the controls
    void makecontrols();
    void setfirstfocus();
    void requestlayout();
    void layoutcontrols();
    void put(const std::vector<Box>& boxes, PixelPoint origin);
    void turnpage(int direction);

    // windowgeometry.cpp: size, place, state and zoom
    void refreshgeometry();
    void giveplace();
    void givesize();
    void standround(QPoint middle);
    void settle();
    void adaptzoom();
    void reportsize();
    bool fillsdisplay() const;
    bool isnormal() const;
    QRect workarea() const;

    Screen& screen_;
    QScrollArea* area_;
    Canvas* canvas_;
    QEventLoop loop_;
    std::unordered_map<const Control*, ControlView*> views_;
    bool presented_ = false;
    bool layoutrequested_ = false;

    Zoom zoom_ = basezoom();
    WindowSize size_;
    Size normal_;         // the record's outer size when the window was last in its normal state
    QPoint middle_;       // of the window in its normal state, where it was put by the record or by a person
    QTimer settling_;     // runs while sizes and places of our own may still be reported, old ones among them
    QElapsedTimer moved_; // since the window was last put somewhere
    bool waited_ = false; // the size in hand has been looked at before

    // As last brought to the window or reported from it.
    double left_ = 0;
    double top_ = 0;
    double width_ = 0;
    double height_ = 0;
    std::int16_t state_ = normal;
};

} // namespace brindor::toolkit::qt
