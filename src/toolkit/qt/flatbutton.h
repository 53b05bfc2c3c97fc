#pragma once

#include "toolkit/qt/wrappedtext.h"

#include <QPushButton>

namespace brindor::toolkit::qt {

// A button in the record's colours whose text wraps and stands in the middle.
class FlatButton : public QPushButton {
public:
    FlatButton(Button& button, QWidget* parent);

    void refresh();
    int heightneeded(int width);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override; // Return presses the button that has the focus
    bool event(QEvent* event) override;            // an access key presses at once
    Button& record() const { return button_; }
    void dim(bool on); // shows that it is elsewhere for now

private:
    Button& button_;
    WrappedText text_;
    bool dimmed_ = false;
};

} // namespace brindor::toolkit::qt
