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

constexpr double linemargin = 3; // pixels at zoom 1, beside those of the style

class LineBox : public QLineEdit {
public:
    LineBox(TextBox& box, QWidget* parent) : QLineEdit(parent), box_(box)
    {
        setMaxLength(std::numeric_limits<int>::max());
        connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) {
            if (!usertype(box_, bytesof(typed))) {
                refresh();
            }
        });
    }

    void refresh()
    {
        const int margin = zoomof(*this).length(linemargin);
        setTextMargins(margin, 0, margin, 0);
        setReadOnly(box_.readonly);
        if (const QString now = shown(box_.text); text() != now) {
            setText(now);
        }
    }

protected:
    // The keys of a spin work in its field.
    void keyPressEvent(QKeyEvent* event) override
    {
        const bool steps = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
        if (!steps || !userstep(box_, event->key() == Qt::Key_Up ? 1 : -1)) {
            QLineEdit::keyPressEvent(event);
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
        connect(this, &QPlainTextEdit::textChanged, this, [this] {
            if (!usertype(box_, bytesof(toPlainText()))) {
                refresh();
            }
        });
    }

    void refresh()
    {
        const QSignalBlocker blocked(this);
        document()->setDocumentMargin(zoomof(*this).length(textmargin - 1)); // and the frame's line
        setReadOnly(box_.readonly);
        // Blanks that do not break come back as plain ones.
        if (const QString now = shown(box_.text); toPlainText() != now) {
            setPlainText(box_.readonly ? unbroken(now) : now);
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
