#include "toolkit/qt/appearance.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/view.h"
#include "toolkit/user.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <limits>

namespace brindor::toolkit::qt {

namespace {

constexpr int linemargin = 3; // pixels, beside those of the style

class LineBoxView : public View {
public:
    LineBoxView(ScreenWindow& window, TextBox& box, QLineEdit* widget)
        : View(window, box, widget), box_(box), widget_(*widget)
    {
        widget->setTextMargins(linemargin, 0, linemargin, 0);
        widget->setMaxLength(std::numeric_limits<int>::max());
        connect(widget, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (!usertype(box_, bytesof(text))) {
                bring();
            }
        });
    }

protected:
    void bringkind() override
    {
        widget_.setReadOnly(box_.readonly);
        if (const QString text = shown(box_.text); widget_.text() != text) {
            widget_.setText(text);
        }
    }

private:
    TextBox& box_;
    QLineEdit& widget_;
};

// Tab leaves the box, and Return is the window's where nothing can be typed.
class ManyLines : public QPlainTextEdit {
public:
    explicit ManyLines(QWidget* parent) : QPlainTextEdit(parent)
    {
        setTabChangesFocus(true);
        document()->setDocumentMargin(textmargin - 1); // and the frame's line
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (isReadOnly() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
            event->ignore();
        } else {
            QPlainTextEdit::keyPressEvent(event);
        }
    }
};

class ManyLinesView : public View {
public:
    ManyLinesView(ScreenWindow& window, TextBox& box, ManyLines* widget)
        : View(window, box, widget), box_(box), widget_(*widget)
    {
        connect(widget, &QPlainTextEdit::textChanged, this, [this] {
            if (!usertype(box_, bytesof(widget_.toPlainText()))) {
                bring();
            }
        });
    }

protected:
    void bringkind() override
    {
        widget_.setReadOnly(box_.readonly);
        if (const QString text = shown(box_.text); widget_.toPlainText() != text) {
            widget_.setPlainText(text);
        }
    }

private:
    TextBox& box_;
    ManyLines& widget_;
};

} // namespace

View* maketextbox(ScreenWindow& window, TextBox& box, QWidget* parent)
{
    if (box.multiline) {
        return new ManyLinesView(window, box, new ManyLines(parent));
    }
    return new LineBoxView(window, box, new QLineEdit(parent));
}

} // namespace brindor::toolkit::qt
