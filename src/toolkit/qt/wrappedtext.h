#pragma once

#include "toolkit/controls.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QTextLayout>

namespace brindor::toolkit::qt {

// A text that wraps within a width, between words where it can and inside a word where it must, so that all of it
// is seen. Never read as markup.
class WrappedText {
public:
    WrappedText() = default;

    // `accesskey` is the letter to underline, 0 for none.
    void set(const QString& text, const QFont& font, Align align, char accesskey = 0);

    // The height in pixels that the text takes within a width; 0 for an empty text.
    int heightfor(int width);
    int lineheight() const;

    // Draws the text in the middle of the rect's height, from its top where it is higher than that.
    void draw(QPainter& painter, const QRect& rect, const QColor& colour);

private:
    void wrap(int width);

    QTextLayout layout_;
    int width_ = -1; // for which the text is wrapped; -1 for none
    int height_ = 0;
};

} // namespace brindor::toolkit::qt
