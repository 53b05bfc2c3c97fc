#include "base/numbers.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/view.h"
#include "toolkit/user.h"

#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QWheelEvent>

namespace brindor::toolkit::qt {

namespace {

constexpr int rowsatonce = 15;
constexpr int linemargin = 3; // pixels, as the fields beside it have them

// The lines of the record, not copied: only how many of them are known here.
class LinesModel : public QAbstractListModel {
public:
    LinesModel(const Combo& combo, QObject* parent) : QAbstractListModel(parent), combo_(combo) {}

    // False where the record has what was known already.
    bool bring()
    {
        const int lines = static_cast<int>(combo_.lines.size());
        if (lines == count_) {
            return false;
        }
        if (lines > count_) {
            beginInsertRows({}, count_, lines - 1);
            count_ = lines;
            endInsertRows();
        } else {
            beginResetModel();
            count_ = lines;
            endResetModel();
        }
        return true;
    }

    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const auto row = static_cast<std::size_t>(index.row());
        const bool text = role == Qt::DisplayRole || role == Qt::EditRole;
        return text && index.isValid() && row < combo_.lines.size() ? shown(combo_.lines[row]) : QVariant();
    }

private:
    const Combo& combo_;
    int count_ = 0;
};

class ComboWidget : public QComboBox {
public:
    explicit ComboWidget(QWidget* parent) : QComboBox(parent)
    {
        setEditable(true);
        setInsertPolicy(NoInsert);
        setFocusPolicy(Qt::StrongFocus);
        setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
        setMaxVisibleItems(rowsatonce);
        lineEdit()->setTextMargins(linemargin, 0, linemargin, 0);
        // Leaving the field is no pick, even if what stands in it is the text of a line.
        disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    }

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); } // scrolls the window, picks nothing
};

class ComboView : public View {
public:
    ComboView(ScreenWindow& window, Combo& combo, ComboWidget* widget)
        : View(window, combo, widget), combo_(combo), widget_(*widget), lines_(new LinesModel(combo, this))
    {
        widget->setModel(lines_);
        auto* completer = new QCompleter(lines_, widget);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        completer->setMaxVisibleItems(rowsatonce);
        widget->setCompleter(completer);
        connect(widget, &QComboBox::activated, this, [this](int line) {
            if (!userpick(combo_, index16(line))) {
                bring();
            }
        });
        connect(widget->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
            if (!usertype(combo_, bytesof(text))) {
                bring();
            }
        });
    }

protected:
    void bringkind() override
    {
        lines_->bring();
        if (widget_.currentIndex() != combo_.position) {
            widget_.setCurrentIndex(combo_.position);
        }
        if (const QString text = shown(combo_.text); widget_.currentText() != text) {
            widget_.setEditText(text);
        }
    }

    // A completion that was looked at and not taken does not stay.
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason) {
            bring();
        }
        return View::eventFilter(watched, event);
    }

private:
    Combo& combo_;
    ComboWidget& widget_;
    LinesModel* lines_;
};

} // namespace

View* makecombo(ScreenWindow& window, Combo& combo, QWidget* parent)
{
    return new ComboView(window, combo, new ComboWidget(parent));
}

} // namespace brindor::toolkit::qt
