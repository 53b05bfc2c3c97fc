#include "toolkit/qt/canvas.h"

#include "toolkit/qt/appearance.h"

#include <QPaintEvent>
#include <QPainter>

namespace brindor::toolkit::qt {

Canvas::Canvas(const Screen& screen) : screen_(screen)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Canvas::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const PictureRef& picture = screen_.backdrop;
    const QSize own = picture == nullptr ? QSize() : QSize(picture->width, picture->height);
    const QSize shape = own.scaled(size(), Qt::KeepAspectRatio);
    const QPixmap& backdrop = backdrop_.at(picture, shape, devicePixelRatioF());
    if (backdrop.isNull() || backdrop.hasAlphaChannel() || shape != size()) {
        painter.fillRect(event->rect(), qtcolour(screen_.back));
    }
    if (!backdrop.isNull()) {
        painter.drawPixmap((width() - shape.width()) / 2, (height() - shape.height()) / 2, backdrop);
    }
}

} // namespace brindor::toolkit::qt
