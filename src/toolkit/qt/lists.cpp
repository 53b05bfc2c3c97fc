#include "base/numbers.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/keys.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/wrappedtext.h"
#include "toolkit/user.h"

#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace brindor::toolkit::qt {

namespace {

// In pixels at zoom 1.
constexpr double leastrowheight = 32;
constexpr double boxsize = 14; // of the box before each line of a list in which many can be selected
constexpr double boxgap = 8;
constexpr double arrowsize = 16; // at the end of a line that a click pushes up
constexpr double rowmargin = 3;

// Draws a line whole, wrapped in its row, in the list's own colours.
class LineDelegate : public QStyledItemDelegate {
public:
    LineDelegate(const List& list, QListWidget* widget) : QStyledItemDelegate(widget), list_(list), widget_(*widget) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const int width = widget_.viewport()->width() / list_.columns;
        text_.set(index.data().toString(), option.font, Align::left);
        const int text = text_.heightfor(width - left() - right()) + 2 * zoom().length(rowmargin);
        // Rounded down, so that as many lines as fit at zoom 1 fit at every zoom.
        const int least = static_cast<int>(leastrowheight * zoom().factor());
        const int share = list_.pushesup ? widget_.viewport()->height() / std::max(1, widget_.count()) : 0;
        return {width, std::max({least, text, share})};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const bool selected = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        const bool hovered = (option.state & QStyle::State_MouseOver) != 0 && widget_.isEnabled();
        const QPalette& palette = option.palette;
        const QColor back = palette.color(selected ? QPalette::Highlight : QPalette::Base);
        const QColor ink = palette.color(widget_.isEnabled() ? QPalette::Normal : QPalette::Disabled,
                                         selected ? QPalette::HighlightedText : QPalette::Text);
        painter->fillRect(option.rect, hovered ? hovercolour(back) : back);
        if (list_.multiselect) {
            drawbox(*painter, option.rect, ink, selected);
        }
        if (list_.pushesup && index.row() > 0) {
            painter->fillRect(QRect(option.rect.topLeft(), QSize(option.rect.width(), 1)), edgecolour(back));
            if (hovered) {
                QRect end = option.rect;
                end.setLeft(end.right() - right());
                drawarrow(*painter, end, zoom().length(arrowsize), true, ink);
            }
        }
        const int top = zoom().length(rowmargin);
        text_.set(index.data().toString(), option.font, Align::left);
        text_.draw(*painter, option.rect.adjusted(left(), top, -right(), -top), ink);
        if (widget_.hasFocus() && index.row() == widget_.currentRow()) {
            drawfocus(*painter, option.rect, selected);
        }
    }

    // Nothing changes by itself: what a click does is told to the record.
    bool editorEvent(QEvent*, QAbstractItemModel*, const QStyleOptionViewItem&, const QModelIndex&) override
    {
        return false;
    }

private:
    Zoom zoom() const { return zoomof(widget_); }
    int left() const { return zoom().length(textmargin + (list_.multiselect ? boxsize + boxgap : 0)); }
    int right() const { return zoom().length(textmargin + (list_.pushesup ? arrowsize + textmargin : 0)); }

    void drawbox(QPainter& painter, const QRect& row, const QColor& ink, bool ticked) const
    {
        const double size = zoom().length(boxsize);
        const QRectF box(row.left() + zoom().length(textmargin) + 0.5, row.center().y() - size / 2, size, size);
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ink, 1));
        painter.drawRoundedRect(box, 2, 2);
        if (ticked) {
            painter.translate(box.topLeft());
            painter.setPen(QPen(ink, size / 7));
            painter.drawPolyline(
                QPolygonF({{size * 0.2, size * 0.5}, {size * 0.42, size * 0.75}, {size * 0.82, size * 0.22}}));
        }
        painter.restore();
    }

    const List& list_;
    QListWidget& widget_;
    mutable WrappedText text_;
};

// The lines are the record's, the current line is the widget's own: it stays at its row while the lines are rebuilt.
class ListWidget : public QListWidget {
public:
    ListWidget(List& list, QWidget* parent) : QListWidget(parent), list_(list)
    {
        setSelectionMode(QAbstractItemView::NoSelection);
        setItemDelegate(new LineDelegate(list, this));
        setResizeMode(QListView::Adjust);
        setWrapping(list.columns > 1);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        setMouseTracking(true);
        viewport()->setAttribute(Qt::WA_Hover);
    }

    void refresh()
    {
        if (list_.lines.size() < lines_.size() || !std::equal(lines_.begin(), lines_.end(), list_.lines.begin())) {
            keeprow();
            clear();
            lines_.clear();
        }
        while (lines_.size() < list_.lines.size()) {
            lines_.push_back(list_.lines[lines_.size()]);
            auto* item = new QListWidgetItem(shown(lines_.back()), this);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable |
                           (list_.multiselect ? Qt::ItemIsUserCheckable : Qt::NoItemFlags));
        }
        if (currentRow() < 0 && keptrow_ >= 0 && keptrow_ < count()) {
            setCurrentRow(keptrow_);
        }
        for (std::size_t i = 0; i < list_.selected.size(); ++i) {
            QListWidgetItem* line = item(static_cast<int>(i));
            const Qt::CheckState state = list_.selected[i] ? Qt::Checked : Qt::Unchecked;
            if (line->data(Qt::CheckStateRole).toInt() != state) {
                line->setData(Qt::CheckStateRole, state);
            }
        }
        scheduleDelayedItemsLayout(); // also where the zoom has changed
        viewport()->update();
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        pressedrow_ = event->button() == Qt::LeftButton ? rowat(*event) : -1;
        if (pressedrow_ >= 0) {
            setCurrentRow(pressedrow_);
        }
    }
    void mouseDoubleClickEvent(QMouseEvent* event) override { mousePressEvent(event); }
    void mouseMoveEvent(QMouseEvent* /*event*/) override {}

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        const int row = rowat(*event);
        if (event->button() == Qt::LeftButton && row >= 0 && row == pressedrow_) {
            userpick(list_, index16(row));
        }
    }

    void resizeEvent(QResizeEvent* event) override
    {
        QListWidget::resizeEvent(event);
        scheduleDelayedItemsLayout();
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (presses(*event)) {
            userpick(list_, index16(currentRow()));
        } else {
            QListWidget::keyPressEvent(event);
        }
    }

private:
    void keeprow() { keptrow_ = currentRow() >= 0 ? currentRow() : keptrow_; }

    int rowat(const QMouseEvent& event) const { return indexAt(event.position().toPoint()).row(); }

    List& list_;
    std::vector<std::string> lines_; // as shown
    int keptrow_ = -1;
    int pressedrow_ = -1;
};

} // namespace

ControlView* makelist(List& list, QWidget* parent)
{
    return new ViewOf<ListWidget>(list, parent);
}

} // namespace brindor::toolkit::qt
