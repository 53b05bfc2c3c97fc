#pragma once

#include "toolkit/qt/access.h"
#include "toolkit/qt/keys.h"

#include <QLabel>
#include <QMouseEvent>

namespace brindor::toolkit::qt {

// A label that a person can click, with the mouse or with Space and Return, as long as something listens.
class ClickLabel : public QLabel, public Pressable {
public:
    using QLabel::QLabel;

    void pressfor() override
    {
        if (listens()) {
            clicked();
        }
    }

protected:
    virtual bool listens() const = 0;
    virtual void clicked() = 0;

    void mousePressEvent(QMouseEvent* event) override
    {
        pressed_ = listens() && event->button() == Qt::LeftButton;
        event->setAccepted(pressed_);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (pressed_ && rect().contains(event->position().toPoint())) {
            pressed_ = false;
            clicked();
        }
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (listens() && presses(*event)) {
            clicked();
        } else {
            QLabel::keyPressEvent(event);
        }
    }

private:
    bool pressed_ = false;
};

} // namespace brindor::toolkit::qt
