#include "toolkit/qt/wrappedtext.h"

#include "toolkit/qt/qttext.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace brindor::toolkit::qt {

namespace {

Qt::Alignment qtalign(Align align)
{
    constexpr Qt::AlignmentFlag flags[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    return flags[static_cast<std::size_t>(align)];
}

} // namespace

void WrappedText::set(const QString& text, const QFont& font, Align align, char accesskey)
{
    QString lines = unbroken(text);
    lines.replace(u'\n', QChar(QChar::LineSeparator));
    QTextOption option(qtalign(align));
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    if (layout_.text() == lines && layout_.font() == font && layout_.textOption().alignment() == option.alignment()) {
        return;
    }
    layout_.setText(lines);
    layout_.setFont(font);
    layout_.setTextOption(option);
    layout_.setCacheEnabled(true);
    const qsizetype at = accesskey == 0 ? -1 : text.indexOf(QLatin1Char(accesskey), 0, Qt::CaseInsensitive);
    if (at >= 0) {
        QTextCharFormat underlined;
        underlined.setFontUnderline(true);
        layout_.setFormats({{static_cast<int>(at), 1, underlined}});
    }
    width_ = -1;
}

void WrappedText::wrap(int width)
{
    if (width == width_) {
        return;
    }
    width_ = width;
    double height = 0;
    layout_.beginLayout();
    for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout_.endLayout();
    height_ = layout_.text().isEmpty() ? 0 : static_cast<int>(std::ceil(height));
}

int WrappedText::heightfor(int width)
{
    wrap(std::max(1, width));
    return height_;
}

int WrappedText::lineheight() const
{
    return QFontMetrics(layout_.font()).height();
}

void WrappedText::draw(QPainter& painter, const QRect& rect, const QColor& colour)
{
    wrap(std::max(1, rect.width()));
    painter.setPen(colour);
    layout_.draw(&painter, QPointF(rect.left(), rect.top() + std::max(0, (rect.height() - height_) / 2)));
}

} // namespace brindor::toolkit::qt
