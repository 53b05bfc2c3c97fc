#include "toolkit/layout.h"
#include "toolkit/qt/access.h"
#include "toolkit/qt/appearance.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/keys.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/wrappedtext.h"
#include "toolkit/user.h"

#include <QMouseEvent>
#include <QPainter>
#include <QRadioButton>

#include <algorithm>
#include <vector>

namespace brindor::toolkit::qt {

namespace {

// In pixels at zoom 1.
constexpr double indicatorsize = 15;
constexpr double indicatorgap = 8;
constexpr double topmargin = 3;
constexpr double plainmargin = 2;

// An option button whose text wraps. The whole of it can be clicked. One of a colour of its own is a card.
class OptionWidget : public QRadioButton, public Pressable {
public:
    OptionWidget(OptionButton& option, QWidget* parent) : QRadioButton(parent), option_(option)
    {
        setAttribute(Qt::WA_Hover);
        if (option.press) {
            setCursor(Qt::PointingHandCursor);
        }
        connect(this, &QRadioButton::clicked, this, [this] {
            setFocus(Qt::OtherFocusReason);
            userclick(option_);
        });
    }

    void refresh()
    {
        const QString text = shown(option_.text);
        setcaption(*this, text, option_.accesskey);
        text_.set(text, font(), Align::left, option_.accesskey);
        if (isChecked() != option_.selected) {
            setAutoExclusive(option_.selected); // else the selected one could not be cleared
            setChecked(option_.selected);
            setAutoExclusive(true);
            settabstop();
        }
    }

    int heightneeded(int width)
    {
        return text_.heightfor(width - textleft() - sidemargin()) + 2 * zoomof(*this).length(topmargin);
    }

    // What "press" of an assistive tool does: the same as a press of the mouse where the screen listens to that.
    QAccessible::Role accessrole() const override { return QAccessible::RadioButton; }

    void pressfor() override
    {
        if (option_.press) {
            userpress(option_);
        } else {
            click();
        }
    }

protected:
    bool hitButton(const QPoint& at) const override { return rect().contains(at); }

    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        const QColor back = qtcolour(option_.back);
        const bool hovered = isEnabled() && underMouse();
        if (iscard()) {
            drawsurface(painter, rect(), back, {.hovered = hovered, .strongedge = isChecked(), .focused = hasFocus()});
        } else if (option_.opaque) {
            painter.fillRect(rect(), back);
        }
        const Zoom zoom = zoomof(*this);
        const int top = zoom.length(topmargin);
        const int size = zoom.length(indicatorsize);
        const QRect textrect = rect().adjusted(textleft(), top, -sidemargin(), -top);
        const int textheight = std::min(textrect.height(), text_.heightfor(textrect.width()));
        const int firstline = textrect.top() + (textrect.height() - textheight) / 2;
        drawindicator(painter, {sidemargin(), firstline + (text_.lineheight() - size) / 2, size, size}, hovered);
        text_.draw(painter, textrect, lettercolour(option_, isEnabled()));
        if (hasFocus() && !iscard()) {
            drawfocus(painter, rect());
        }
    }

    // A press with any button answers where the screen listens to presses.
    void mousePressEvent(QMouseEvent* event) override
    {
        if (option_.press) {
            userpress(option_);
        } else {
            QRadioButton::mousePressEvent(event);
        }
    }

    void mouseMoveEvent(QMouseEvent* event) override
    {
        if (!option_.press) {
            QRadioButton::mouseMoveEvent(event);
        }
    }

    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (!option_.press) {
            QRadioButton::mouseReleaseEvent(event);
        }
    }

    bool event(QEvent* event) override { return pressedbyaccesskey(*this, *event) || QRadioButton::event(event); }
    void nextCheckState() override {} // the record says which one is selected

private:
    bool iscard() const { return issurface(option_); }

    // Tab goes to the selected one of its container, or to each where none is selected.
    void settabstop()
    {
        std::vector<OptionWidget*> group;
        for (QObject* child : parentWidget()->children()) {
            if (auto* option = dynamic_cast<OptionWidget*>(child)) {
                group.push_back(option);
            }
        }
        const bool any =
            std::any_of(group.begin(), group.end(), [](const auto* option) { return option->isChecked(); });
        for (OptionWidget* option : group) {
            option->setFocusPolicy(any && !option->isChecked() ? Qt::ClickFocus : Qt::StrongFocus);
        }
    }

    int sidemargin() const { return zoomof(*this).length(iscard() ? textmargin : plainmargin); }
    int textleft() const { return sidemargin() + zoomof(*this).length(indicatorsize + indicatorgap); }

    void drawindicator(QPainter& painter, const QRect& where, bool hovered) const
    {
        const QColor ink = lettercolour(option_, isEnabled());
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ink, hovered ? 2 : 1.4));
        painter.setBrush(isDown() ? QColor(225, 225, 225) : QColor(Qt::white));
        painter.drawEllipse(QRectF(where).adjusted(1, 1, -1, -1));
        if (isChecked()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(ink);
            const double inset = where.width() * 0.28;
            painter.drawEllipse(QRectF(where).adjusted(inset, inset, -inset, -inset));
        }
        painter.restore();
    }

    OptionButton& option_;
    WrappedText text_;
};

} // namespace

ControlView* makeoptionbutton(OptionButton& option, QWidget* parent)
{
    return new ViewOf<OptionWidget>(option, parent);
}

} // namespace brindor::toolkit::qt
