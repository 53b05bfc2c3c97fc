#include "toolkit/layout.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/clicklabel.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/wrappedtext.h"
#include "toolkit/qt/zoom.h"
#include "toolkit/user.h"

#include <QPainter>

namespace brindor::toolkit::qt {

namespace {

constexpr double topmargin = 3; // pixels at zoom 1, of a coloured surface

// A label that shows its text whole. One with a drop event is also a thing to click and to Tab to.
class LabelWidget : public ClickLabel {
public:
    LabelWidget(Label& label, QWidget* parent) : ClickLabel(parent), label_(label)
    {
        setTextFormat(Qt::PlainText);
        if (label.drop) {
            setAttribute(Qt::WA_Hover);
            setFocusPolicy(Qt::StrongFocus);
        }
    }

    void refresh()
    {
        const QString text = shown(label_.text);
        // With a field that it names a label would take "&" for the mark of an access key.
        if (const QString spoken = label_.names == nullptr ? text : withoutmnemonic(text); QLabel::text() != spoken) {
            setText(spoken);
        }
        text_.set(text, font(), label_.align);
    }

    int heightneeded(int width)
    {
        const QMargins margins = inner();
        const int text = text_.heightfor(textwidth(width));
        return text == 0 ? 0 : text + margins.top() + margins.bottom();
    }

    QAccessible::Role accessrole() const override { return listens() ? QAccessible::StaticText : QAccessible::NoRole; }

    void highlight(bool on)
    {
        highlighted_ = on;
        update();
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const bool aimedat = highlighted_ || (label_.drop && underMouse() && label_.screen->dragged != nullptr);
        const QColor back = qtcolour(label_.back);
        if (label_.opaque) {
            painter.fillRect(rect(), aimedat ? targetcolour(back) : back);
        }
        if (label_.outlined) {
            const int width = aimedat ? 3 : 1;
            painter.setPen(QPen(edgecolour(aimedat ? targetcolour(back) : back), width, Qt::SolidLine, Qt::SquareCap,
                                Qt::MiterJoin));
            painter.drawRect(rect().adjusted(width / 2, width / 2, -1 - width / 2, -1 - width / 2));
        }
        if (hasFocus()) {
            drawfocus(painter, rect());
        }
        const QMargins margins = inner();
        const QRect within(margins.left(), margins.top(), textwidth(width()),
                           height() - margins.top() - margins.bottom());
        if (!label_.opaque && label_.screen->backdrop != nullptr) {
            drawhalo(painter, within);
        }
        text_.draw(painter, within, lettercolour(label_, isEnabled()));
    }

    bool listens() const override { return label_.drop != nullptr; }
    void clicked() override { userclick(label_); }

private:
    // A coloured surface keeps its text off the edge; a plain one lines its text up with what stands above it.
    QMargins inner() const
    {
        const Zoom zoom = zoomof(*this);
        const int side = zoom.length(textmargin);
        const int top = zoom.length(topmargin);
        return issurface(label_) ? QMargins(side, top, side, top) : QMargins();
    }

    // Letters can be read on whatever picture the player has chosen.
    void drawhalo(QPainter& painter, const QRect& within)
    {
        for (const QPoint offset : {QPoint(-1, -1), QPoint(1, -1), QPoint(-1, 1), QPoint(1, 1)}) {
            text_.draw(painter, within.translated(offset), qtcolour(label_.screen->back));
        }
    }

    int textwidth(int width) const
    {
        const QMargins margins = inner();
        const int whole = width - margins.left() - margins.right();
        return label_.textwidth > 0 ? std::min(whole, zoomof(*this).pixels(label_.textwidth) - margins.left()) : whole;
    }

    Label& label_;
    WrappedText text_;
    bool highlighted_ = false;
};

} // namespace

ControlView* makelabel(Label& label, QWidget* parent)
{
    return new ViewOf<LabelWidget>(label, parent);
}

} // namespace brindor::toolkit::qt
