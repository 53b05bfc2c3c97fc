#include "base/numbers.h"
#include "toolkit/qt/controlview.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/user.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>

#include <algorithm>

namespace brindor::toolkit::qt {

namespace {

constexpr int rowsatonce = 15;
constexpr double linemargin = 3; // pixels at zoom 1, as the fields beside it have them

class ComboWidget : public QComboBox {
public:
    ComboWidget(Combo& combo, QWidget* parent) : QComboBox(parent), combo_(combo), lines_(new QStringListModel(this))
    {
        setEditable(true);
        setInsertPolicy(NoInsert);
        setFocusPolicy(Qt::StrongFocus);
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
        setMaxVisibleItems(rowsatonce);
        // Leaving the field is no pick, even if what stands in it is the text of a line.
        disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
        disconnect(lineEdit(), &QLineEdit::returnPressed, this, nullptr);
        connect(lineEdit(), &QLineEdit::returnPressed, this, [this] { userreturn(*combo_.screen); });
        setModel(lines_);
        auto* completer = new QCompleter(lines_, this);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        completer->setMaxVisibleItems(rowsatonce);
        setCompleter(completer);
        connect(this, &QComboBox::activated, this, [this](int line) {
            if (!userpick(combo_, index16(line))) {
                refresh();
            }
        });
        connect(lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
            if (!usertype(combo_, bytesof(text))) {
                refresh();
            }
        });
    }

    void refresh()
    {
        const QSignalBlocker blocked(this);
        const int margin = zoomof(*this).length(linemargin);
        lineEdit()->setTextMargins(margin, 0, margin, 0);
        lineEdit()->setAccessibleName(accessibleName());
        refreshlines();
        if (currentIndex() != combo_.position) {
            setCurrentIndex(combo_.position);
        }
        if (const QString text = shown(combo_.text); currentText() != text) {
            setEditText(text);
        }
    }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); } // scrolls the window, picks nothing

    // Return has been told of by the field.
    void keyPressEvent(QKeyEvent* event) override
    {
        QComboBox::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
            event->accept();
        }
    }

    // A completion that was looked at and not taken does not stay.
    void focusOutEvent(QFocusEvent* event) override
    {
        if (event->reason() != Qt::PopupFocusReason) {
            refresh();
        }
        QComboBox::focusOutEvent(event);
    }

private:
    // Lines are only added one by one or cleared all together, so how many there are tells which are new.
    void refreshlines()
    {
        const auto wanted = static_cast<int>(combo_.lines.size());
        if (wanted < lines_->rowCount()) {
            lines_->setStringList({});
        }
        if (lines_->rowCount() == 0 && wanted > 0) {
            QStringList all;
            all.reserve(wanted);
            std::transform(combo_.lines.begin(), combo_.lines.end(), std::back_inserter(all), shown);
            lines_->setStringList(all);
        }
        for (int line = lines_->rowCount(); line < wanted; ++line) {
            lines_->insertRow(line);
            lines_->setData(lines_->index(line), shown(combo_.lines[static_cast<std::size_t>(line)]));
        }
    }

    Combo& combo_;
    QStringListModel* lines_;
};

} // namespace

ControlView* makecombo(Combo& combo, QWidget* parent)
{
    return new ViewOf<ComboWidget>(combo, parent);
}

} // namespace brindor::toolkit::qt
