#include "toolkit/qt/appearance.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/user.h"

#include <QKeyEvent>
#include <QPainter>
#include <QToolButton>

#include <array>

namespace brindor::toolkit::qt {

namespace {

// One of the two halves; steps again and again while it is held.
class StepButton : public QToolButton {
public:
    StepButton(const Spin& spin, bool up, QWidget* parent) : QToolButton(parent), spin_(spin), up_(up)
    {
        setAutoRepeat(true);
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_Hover);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        drawsurface(painter, rect(), qtcolour(spin_.back),
                    {.hovered = isEnabled() && underMouse(), .pressed = isDown()});
        drawarrow(painter, rect(), std::min(width(), height()) / 2.0 + 2, up_, lettercolour(spin_, isEnabled()));
    }

private:
    const Spin& spin_;
    bool up_;
};

class SpinWidget : public QWidget {
public:
    SpinWidget(Spin& spin, QWidget* parent) : QWidget(parent), spin_(spin)
    {
        setFocusPolicy(Qt::ClickFocus);
        const std::array<int, 2> steps = {1, -1};
        for (std::size_t i = 0; i < halves_.size(); ++i) {
            halves_[i] = new StepButton(spin, steps[i] > 0, this);
            connect(halves_[i], &QToolButton::clicked, this, [this, half = halves_[i], step = steps[i]] {
                if (!userstep(spin_, step)) {
                    half->setDown(false); // else it would go on by itself behind a message
                }
            });
        }
    }

    void refresh()
    {
        const QString what = shown(spin_.says);
        halves_[0]->setAccessibleName((what + QLatin1String(" up")).trimmed());
        halves_[1]->setAccessibleName((what + QLatin1String(" down")).trimmed());
        update();
    }

protected:
    void resizeEvent(QResizeEvent* /*event*/) override
    {
        // Side by side where there is room: a half is to be hit easily.
        const bool beside = width() > height();
        const QSize half = beside ? QSize(width() / 2, height()) : QSize(width(), height() / 2);
        halves_[0]->setGeometry({{0, 0}, half});
        halves_[1]->setGeometry(
            {beside ? QPoint(width() - half.width(), 0) : QPoint(0, height() - half.height()), half});
    }

    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
            userstep(spin_, event->key() == Qt::Key_Up ? 1 : -1);
        } else {
            QWidget::keyPressEvent(event);
        }
    }

private:
    Spin& spin_;
    std::array<StepButton*, 2> halves_{};
};

} // namespace

ControlView* makespin(Spin& spin, QWidget* parent)
{
    return new ViewOf<SpinWidget>(spin, parent);
}

} // namespace brindor::toolkit::qt
