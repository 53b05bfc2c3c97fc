#include "toolkit/qt/access.h"

#include "toolkit/operations.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/screenwindow.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>

#include <map>

namespace brindor::toolkit::qt {

namespace {

class WindowAccess : public QAccessibleWidget {
public:
    explicit WindowAccess(QWidget* window) : QAccessibleWidget(window, roleof(*window)) {}

    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        result.modal = role() == QAccessible::Dialog;
        return result;
    }

private:
    // The first window stands in front of nothing.
    static QAccessible::Role roleof(const QWidget& window)
    {
        return window.parentWidget() == nullptr ? QAccessible::Window : QAccessible::Dialog;
    }
};

// Qt names a drop-down list by its value.
class ComboAccess : public QAccessibleWidget {
public:
    explicit ComboAccess(QComboBox* combo) : QAccessibleWidget(combo, QAccessible::ComboBox), combo_(*combo) {}

    QString text(QAccessible::Text which) const override
    {
        return which == QAccessible::Value ? combo_.currentText() : QAccessibleWidget::text(which);
    }

    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        result.expandable = true;
        result.expanded = combo_.view()->isVisible();
        result.editable = true;
        return result;
    }

    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << showMenuAction(); }

    void doAction(const QString& action) override
    {
        if (action != showMenuAction()) {
            QAccessibleWidget::doAction(action);
        } else if (combo_.view()->isVisible()) {
            combo_.hidePopup();
        } else {
            combo_.showPopup();
        }
    }

private:
    QComboBox& combo_;
};

class PressAccess : public QAccessibleWidget {
public:
    PressAccess(QWidget* widget, Pressable& pressable)
        : QAccessibleWidget(widget, pressable.accessrole()), pressable_(pressable)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State result = QAccessibleWidget::state();
        if (const auto* option = qobject_cast<const QAbstractButton*>(widget())) {
            result.checkable = true;
            result.checked = option->isChecked();
        }
        return result;
    }

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString& action) override
    {
        if (action == pressAction()) {
            pressable_.pressfor();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    Pressable& pressable_;
};

bool liesabove(QWidget& upper, QWidget& lower)
{
    const QObjectList& order = upper.parent()->children();
    return order.indexOf(&upper) > order.indexOf(&lower);
}

QAccessibleInterface* makeaccess(const QString& /*classname*/, QObject* object)
{
    if (auto* window = dynamic_cast<ScreenWindow*>(object)) {
        return new WindowAccess(window);
    }
    if (auto* combo = qobject_cast<QComboBox*>(object)) {
        return new ComboAccess(combo);
    }
    auto* pressable = dynamic_cast<Pressable*>(object);
    if (pressable != nullptr && pressable->accessrole() != QAccessible::NoRole) {
        return new PressAccess(static_cast<QWidget*>(object), *pressable);
    }
    return nullptr;
}

} // namespace

void installaccess()
{
    QAccessible::installFactory(makeaccess);
}

void telldrops(ScreenWindow& window, const Screen& screen)
{
    std::map<const Label*, const Button*> holds; // the one on top
    for (const Control* control : screen.controls) {
        if (control->kind == Kind::label && static_cast<const Label*>(control)->drop) {
            holds[static_cast<const Label*>(control)] = nullptr;
        }
    }
    if (holds.empty()) {
        return;
    }
    for (const Control* control : screen.controls) {
        if (control->kind != Kind::button || !static_cast<const Button*>(control)->bar) {
            continue;
        }
        const auto& bar = static_cast<const Button&>(*control);
        QWidget& widget = window.widgetof(bar);
        QString text = bar.screen->dragged == &bar ? QStringLiteral("Picked up. ") : QString();
        if (const Label* row = rowof(bar)) {
            text += QLatin1String("On the row ") + shown(row->text) + QLatin1String(". ");
            const Button*& held = holds[row];
            held = held == nullptr || liesabove(widget, window.widgetof(*held)) ? &bar : held;
        }
        widget.setAccessibleDescription((text + shown(bar.tooltip)).trimmed());
    }
    for (const auto& [row, bar] : holds) {
        const QString text = bar == nullptr ? QStringLiteral("Empty. ")
                                            : QLatin1String("Holds ") + shown(bar->text) + QLatin1String(". ");
        window.widgetof(*row).setAccessibleDescription((text + shown(row->tooltip)).trimmed());
    }
}

} // namespace brindor::toolkit::qt
