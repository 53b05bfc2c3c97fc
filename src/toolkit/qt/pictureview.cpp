#include "toolkit/qt/appearance.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/qt/screenwindow.h"
#include "toolkit/qt/view.h"
#include "toolkit/user.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace brindor::toolkit::qt {

namespace {

class PictureWidget : public QLabel {
public:
    PictureWidget(Picture& picture, QWidget* parent) : QLabel(parent), picture_(picture)
    {
        if (picture.click) {
            setFocusPolicy(Qt::StrongFocus);
            setCursor(Qt::PointingHandCursor);
        }
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QPixmap& pixmap = stretched_.at(picture_.picture, size(), devicePixelRatioF());
        if (!pixmap.isNull()) {
            painter.drawPixmap(0, 0, pixmap);
        } else if (picture_.opaque) {
            painter.fillRect(rect(), qtcolour(picture_.back));
        }
        if (hasFocus()) {
            drawfocus(painter, rect());
        }
    }

    void mousePressEvent(QMouseEvent* event) override
    {
        pressed_ = picture_.click && event->button() == Qt::LeftButton;
        event->setAccepted(pressed_);
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (pressed_ && rect().contains(event->position().toPoint())) {
            pressed_ = false;
            userclick(picture_);
        }
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (picture_.click && ScreenWindow::presses(*event)) {
            userclick(picture_);
        } else {
            QLabel::keyPressEvent(event);
        }
    }

private:
    Picture& picture_;
    StretchedPicture stretched_;
    bool pressed_ = false;
};

class PictureView : public View {
public:
    using View::View;

protected:
    void bringkind() override {}
};

} // namespace

View* makepicture(ScreenWindow& window, Picture& picture, QWidget* parent)
{
    return new PictureView(window, picture, new PictureWidget(picture, parent));
}

} // namespace brindor::toolkit::qt
