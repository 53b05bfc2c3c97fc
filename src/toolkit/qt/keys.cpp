#include "toolkit/qt/keys.h"

#include "toolkit/qt/qttext.h"

#include <QKeySequence>
#include <QShortcutEvent>

namespace brindor::toolkit::qt {

bool presses(const QKeyEvent& event)
{
    const bool key = event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    return key && !event.isAutoRepeat();
}

void setcaption(QAbstractButton& button, const QString& text, char accesskey)
{
    if (const QString caption = withoutmnemonic(text); button.text() != caption) {
        button.setText(caption);
    }
    const QKeySequence sequence =
        accesskey == 0 ? QKeySequence() : QKeySequence(QLatin1String("Alt+") + QLatin1Char(accesskey));
    if (button.shortcut() != sequence) {
        button.setShortcut(sequence);
    }
}

bool pressedbyaccesskey(QAbstractButton& button, const QEvent& event)
{
    if (event.type() != QEvent::Shortcut || static_cast<const QShortcutEvent&>(event).isAmbiguous()) {
        return false;
    }
    button.click();
    return true;
}

} // namespace brindor::toolkit::qt
