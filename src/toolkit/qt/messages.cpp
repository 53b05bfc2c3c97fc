#include "toolkit/qt/messages.h"

#include "toolkit/qt/qttext.h"

#include <QMessageBox>

namespace brindor::toolkit::qt {

bool showmessage(const Message& message, QWidget* window)
{
    QMessageBox box(window);
    box.setObjectName("message");
    box.setWindowTitle(shown(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(shown(message.text));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (message.question) {
        box.setIcon(QMessageBox::Question);
        box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
        box.setEscapeButton(QMessageBox::No);
    } else {
        box.setIcon(QMessageBox::Information);
        box.setStandardButtons(QMessageBox::Ok);
    }
    const int answer = box.exec();
    return answer == QMessageBox::Ok || answer == QMessageBox::Yes;
}

} // namespace brindor::toolkit::qt
