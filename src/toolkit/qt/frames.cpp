#include "toolkit/qt/appearance.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/qttext.h"

#include <QFontMetrics>
#include <QGroupBox>
#include <QPainter>

namespace brindor::toolkit::qt {

namespace {

// A container. With a border it draws a thin line round its contents, broken by the caption at the top.
class FrameWidget : public QGroupBox {
public:
    FrameWidget(const Frame& frame, QWidget* parent) : QGroupBox(parent), frame_(frame) {}

    void refresh()
    {
        const QString caption = frame_.border ? withoutmnemonic(shown(frame_.text)) : QString();
        if (title() != caption) {
            setTitle(caption);
        }
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QColor back = qtcolour(frame_.back);
        if (frame_.opaque) {
            painter.fillRect(rect(), back);
        }
        if (!frame_.border) {
            return;
        }
        const QFontMetrics metrics(font());
        const QString caption = shown(frame_.text);
        const int line = metrics.height() / 2;
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(edgecolour(back), 1));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, line + 0.5, -0.5, -0.5), 3, 3);
        if (!caption.trimmed().isEmpty()) {
            const int margin = zoomof(*this).length(textmargin);
            const QRect words(margin, 0, metrics.horizontalAdvance(caption) + margin, metrics.height());
            painter.fillRect(words, back);
            painter.setPen(lettercolour(frame_, isEnabled()));
            painter.drawText(words, Qt::AlignCenter | Qt::TextSingleLine, caption);
        }
    }

private:
    const Frame& frame_;
};

} // namespace

ControlView* makeframe(Frame& frame, QWidget* parent)
{
    return new ViewOf<FrameWidget>(frame, parent);
}

} // namespace brindor::toolkit::qt
