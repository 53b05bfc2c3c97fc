#pragma once

#include "toolkit/controls.h"
#include "toolkit/qt/layout.h"
#include "toolkit/qt/windowsize.h"

#include <QEventLoop>
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
    void present(); // shows the window, complete and in its place
    void run();     // returns when the screen has closed, or at endrun
    void endrun();
    void refreshscreen();                     // the screen's own fields have changed
    void refresh(Control& control);           // a control's fields have changed
    void focus(Control& control);             // the control has got the focus
    ControlView* viewat(QPoint global) const; // of the control that is seen at a place of the display; none elsewhere

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void refreshplace();
    void setfirstfocus();
    void requestlayout();
    void layoutcontrols();
    std::vector<Box> boxesin(const Frame* container) const;
    void put(const std::vector<Box>& boxes, QPoint origin);
    void reportsize();
    bool fillsdisplay() const;
    void turnpage(int direction);

    Screen& screen_;
    QScrollArea* area_;
    Canvas* canvas_;
    QEventLoop loop_;
    std::unordered_map<const Control*, ControlView*> views_;
    WindowSize size_;
    QPoint displaycorner_; // of the display that the windows are on; the record's place counts from it
    bool presented_ = false;
    bool layoutrequested_ = false;
    bool waited_ = false; // the size in hand has been looked at before

    // As last brought to the window or reported from it.
    double left_ = 0;
    double top_ = 0;
    double width_ = 0;
    double height_ = 0;
    std::int16_t state_ = normal;
};

} // namespace brindor::toolkit::qt
