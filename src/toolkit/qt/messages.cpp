#include "toolkit/qt/messages.h"

#include "toolkit/qt/appearance.h"
#include "toolkit/qt/qttext.h"
#include "toolkit/qt/windowsize.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QMessageBox>
#include <QRegularExpression>

namespace brindor::toolkit::qt {

namespace {

constexpr double leastwidth = 380; // pixels at zoom 1

// The box wraps between words only: one as long as a line may be broken anywhere.
QString breakable(QString text)
{
    static const QRegularExpression longword("(\\S{60})(?=\\S)");
    return text.replace(longword, QString("\\1") + QChar(0x200b));
}

// A message in the game's own dress, which grows and shrinks with the zoom while it is open.
class MessageBox : public QMessageBox {
public:
    MessageBox(const Message& message, QWidget* window) : QMessageBox(window), large_(message.large)
    {
        setObjectName("message");
        setWindowTitle(shown(message.title));
        setTextFormat(Qt::PlainText);
        setText(breakable(unbroken(shown(message.text))));
        setTextInteractionFlags(Qt::TextSelectableByMouse);
        if (message.question) {
            setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            setEscapeButton(QMessageBox::No);
        } else {
            setStandardButtons(QMessageBox::Ok);
        }
        for (QAbstractButton* button : buttons()) {
            button->setIcon({});
        }
        // Wide enough for the title to be read.
        auto* grid = static_cast<QGridLayout*>(layout());
        grid->addItem(width_ = new QSpacerItem(0, 0), grid->rowCount(), 0, 1, grid->columnCount());
        fit();
    }

    // The zoom has changed; the box stays round its middle.
    void refit()
    {
        const QPoint middle = geometry().center();
        fit();
        QCoreApplication::sendPostedEvents(this, QEvent::LayoutRequest);
        adjustSize();
        const QMargins frame = framemargins();
        move(middle - rect().center() - QPoint(frame.left(), frame.top()));
    }

private:
    void fit()
    {
        constexpr double plainpoints = 12;
        constexpr double largepoints = 20;
        constexpr double margin = 16;
        constexpr double buttonwidth = 96;
        constexpr double buttonheight = 32;
        const Zoom zoom = basezoom();
        setFont(qtfont({Face::plain, large_ ? largepoints : plainpoints, large_}, zoom));
        const int around = zoom.length(margin);
        layout()->setContentsMargins(around, around, around, around);
        width_->changeSize(zoom.length(leastwidth), 0);
        for (QAbstractButton* button : buttons()) {
            button->setFont(qtfont({Face::plain, plainpoints, false}, zoom));
            button->setMinimumSize(zoom.length(buttonwidth), zoom.length(buttonheight));
        }
    }

    bool large_;
    QSpacerItem* width_ = nullptr;
};

} // namespace

bool showmessage(const Message& message, QWidget* window)
{
    MessageBox box(message, window);
    const int answer = box.exec();
    return answer == QMessageBox::Ok || answer == QMessageBox::Yes;
}

void rezoommessages()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* box = dynamic_cast<MessageBox*>(widget)) {
            box->refit();
        }
    }
}

} // namespace brindor::toolkit::qt
