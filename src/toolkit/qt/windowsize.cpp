#include "toolkit/qt/windowsize.h"

#include "toolkit/qt/twips.h"

#include <QWindow>

namespace brindor::toolkit::qt {

namespace {

QMargins learned;

QSize framesize()
{
    return {learned.left() + learned.right(), learned.top() + learned.bottom()};
}

} // namespace

QSize WindowSize::give(double width, double height)
{
    given_ = {width, height};
    givenpixels_ = (QSize(pixels(width), pixels(height)) - framesize()).expandedTo({1, 1});
    return givenpixels_;
}

Size WindowSize::outer(QSize inner) const
{
    const QSize all = inner + framesize();
    return {inner.width() == givenpixels_.width() ? given_.width : all.width() * twipsinpixel,
            inner.height() == givenpixels_.height() ? given_.height : all.height() * twipsinpixel};
}

QMargins framemargins()
{
    return learned;
}

void learnframe(const QWidget& shownwindow)
{
    const QWindow* handle = shownwindow.windowHandle();
    const bool tellsall =
        handle != nullptr && shownwindow.isVisible() && shownwindow.windowState() == Qt::WindowNoState;
    if (learned.isNull() && tellsall) {
        learned = handle->frameMargins();
    }
}

} // namespace brindor::toolkit::qt
