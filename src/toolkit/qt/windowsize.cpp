#include "toolkit/qt/windowsize.h"

#include <QWindow>

#include <algorithm>

namespace brindor::toolkit::qt {

namespace {

QMargins learned;

constexpr QSize guessed(10, 32); // for a frame that is not yet known

QSize sumof(const QMargins& frame)
{
    return {frame.left() + frame.right(), frame.top() + frame.bottom()};
}

} // namespace

WindowSize::WindowSize() : frame_(learned) {}

QSize WindowSize::give(Size outer, QSize workarea)
{
    const Zoom zoom = basezoom();
    const QSize most = workarea - (learned.isNull() ? guessed : sumof(learned));
    given_ = outer;
    givenpixels_ =
        (QSize(zoom.pixels(outer.width), zoom.pixels(outer.height)) - sumof(frame_)).boundedTo(most).expandedTo({1, 1});
    return givenpixels_;
}

Size WindowSize::outer(QSize inner, Zoom zoom)
{
    const bool base = zoom == basezoom();
    const bool samewidth = base && inner.width() == givenpixels_.width();
    const bool sameheight = base && inner.height() == givenpixels_.height();
    if (!samewidth || !sameheight) {
        frame_ = learned;
    }
    const QSize frame = sumof(learned);
    const auto twips = [zoom](int inside, int around) { return zoom.twips(inside) + basezoom().twips(around); };
    return {samewidth ? given_.width : twips(inner.width(), frame.width()),
            sameheight ? given_.height : twips(inner.height(), frame.height())};
}

Zoom WindowSize::filling(Size outer, QSize inner) const
{
    const QSize frame = sumof(frame_);
    const double width = std::max(1.0, outer.width - basezoom().twips(frame.width()));
    const double height = std::max(1.0, outer.height - basezoom().twips(frame.height()));
    return Zoom(std::min(inner.width() / width, inner.height() / height) * twipsinpixel);
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
