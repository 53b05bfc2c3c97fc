#include "toolkit/qt/messages.h"

#include "toolkit/qt/qttext.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QMessageBox>
#include <QRegularExpression>

namespace brindor::toolkit::qt {

namespace {

constexpr int leastwidth = 380; // pixels

// The box wraps between words only: one as long as a line may be broken anywhere.
QString breakable(QString text)
{
    static const QRegularExpression longword("(\\S{60})(?=\\S)");
    return text.replace(longword, QString("\\1") + QChar(0x200b));
}

} // namespace

bool showmessage(const Message& message, QWidget* window)
{
    QMessageBox box(window);
    box.setObjectName("message");
    box.setWindowTitle(shown(message.title));
    box.setTextFormat(Qt::PlainText);
    box.setText(breakable(shown(message.text)));
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
