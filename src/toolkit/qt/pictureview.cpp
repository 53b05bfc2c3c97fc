#include "toolkit/qt/appearance.h"
#include "toolkit/qt/clicklabel.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/pictures.h"
#include "toolkit/user.h"

#include <QPainter>

namespace brindor::toolkit::qt {

namespace {

class PictureWidget : public ClickLabel {
public:
    PictureWidget(Picture& picture, QWidget* parent) : ClickLabel(parent), picture_(picture)
    {
        if (picture.click) {
            setFocusPolicy(Qt::StrongFocus);
            setCursor(Qt::PointingHandCursor);
        }
    }

    void refresh() {}
    QAccessible::Role accessrole() const override { return QAccessible::Graphic; }

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

    bool listens() const override { return picture_.click != nullptr; }
    void clicked() override { userclick(picture_); }

private:
    Picture& picture_;
    StretchedPicture stretched_;
};

} // namespace

ControlView* makepicture(Picture& picture, QWidget* parent)
{
    return new ViewOf<PictureWidget>(picture, parent);
}

} // namespace brindor::toolkit::qt
