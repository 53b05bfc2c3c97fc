#include "toolkit/qt/appearance.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/user.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <limits>

namespace brindor::toolkit::qt {

namespace {

constexpr int linemargin = 3; // pixels, beside those of the style

class LineBox : public QLineEdit {
public:
    LineBox(TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box)
    {
        setTextMargins(linemargin, 0, linemargin, 0);
        setMaxLength(std::numeric_limits<int>::max());
        connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) {
            if (!usertype(box_, bytesof(typed))) {
                refresh();
            }
        });
    }

    void refresh()
    {
        setReadOnly(box_.readonly);
        if (const QString now = shown(box_.text); text() != now) {
            setText(now);
        }
    }

private:
    TextBox& box_;
};

// Tab leaves the box, and Return is the window's where nothing can be typed.
class ManyLines : public QPlainTextEdit {
public:
    ManyLines(TextBox& box, QWidget* parent) : QPlainTextEdit(parent), box_(box)
    {
        setTabChangesFocus(true);
        document()->setDocumentMargin(textmargin - 1); // and the frame's line
        connect(this, &QPlainTextEdit::textChanged, this, [this] {
            if (!usertype(box_, bytesof(toPlainText()))) {
                refresh();
            }
        });
    }

    void refresh()
    {
        const QSignalBlocker blocked(this);
        setReadOnly(box_.readonly);
        if (const QString now = shown(box_.text); toPlainText() != now) {
            setPlainText(now);
        }
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

private:
    TextBox& box_;
};

} // namespace

ControlView* maketextbox(TextBox& box, QWidget* parent)
{
    if (box.multiline) {
        return new ViewOf<ManyLines>(box, parent);
    }
    return new ViewOf<LineBox>(box, parent);
}

} // namespace brindor::toolkit::qt
