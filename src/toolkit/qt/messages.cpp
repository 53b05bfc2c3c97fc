#include "toolkit/qt/messages.h"

#include "toolkit/qt/qttext.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QMessageBox>

namespace brindor::toolkit::qt {

namespace {

constexpr int leastwidth = 380; // pixels

} // namespace

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
    for (QAbstractButton* button : box.buttons()) {
        button->setIcon({});
    }
    // Wide enough for the title to be read.
    auto* grid = static_cast<QGridLayout*>(box.layout());
    grid->addItem(new QSpacerItem(leastwidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
    const int answer = box.exec();
    return answer == QMessageBox::Ok || answer == QMessageBox::Yes;
}

} // namespace brindor::toolkit::qt
