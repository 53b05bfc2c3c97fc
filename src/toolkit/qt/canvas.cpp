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
    const QPixmap& backdrop = backdrop_.at(screen_.backdrop, size(), devicePixelRatioF());
    if (backdrop.isNull() || backdrop.hasAlphaChannel()) {
        painter.fillRect(event->rect(), qtcolour(screen_.back));
    }
    if (!backdrop.isNull()) {
        painter.drawPixmap(0, 0, backdrop);
    }
}

} // namespace brindor::toolkit::qt
