#include "toolkit/qt/windowicon.h"

#include <QPainter>
#include <QPixmap>

namespace brindor::toolkit::qt {

namespace {

// On a field of 64 x 64: a brass ring round a paper disc, four points and four smaller ones between them.
void paintcompass(QPainter& painter)
{
    const QColor ink(64, 32, 16);
    const QPointF middle(32, 32);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 2));
    painter.setBrush(QColor(214, 160, 64));
    painter.drawEllipse(middle, 30, 30);
    painter.setBrush(QColor(250, 240, 210));
    painter.drawEllipse(middle, 23, 23);
    painter.translate(middle);
    for (int point = 0; point < 8; ++point) {
        const bool small = point < 4; // those between lie below
        const double length = small ? 14 : 27;
        const double half = small ? 3.5 : 6;
        painter.save();
        painter.rotate(90 * (point % 4) + (small ? 45 : 0));
        painter.setPen(QPen(ink, 0.8));
        painter.setBrush(point == 4 ? QColor(190, 40, 30) : ink); // north is red
        painter.drawPolygon(QPolygonF({{0, -length}, {half, -half}, {0, 0}}));
        painter.setBrush(QColor(250, 240, 210));
        painter.drawPolygon(QPolygonF({{0, -length}, {-half, -half}, {0, 0}}));
        painter.restore();
    }
}

} // namespace

QIcon compassicon()
{
    QIcon icon;
    for (const int size : {16, 32, 64}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.scale(size / 64.0, size / 64.0);
        paintcompass(painter);
        painter.end();
        icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace brindor::toolkit::qt
