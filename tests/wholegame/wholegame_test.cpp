#include "frame/mainscreen.h"
#include "support/gametest.h"
#include "support/randomplayer.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"
#include "toolkit/windows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

// Games from the main screen to its end, in windows and with the mouse.
namespace brindor::tests {

namespace {

using WholeGame = GameTest;

TEST_F(WholeGame, SomethingThatAUserDoesBringsTheWindowsOutOfOrder)
{
    RandomPlayer::writetimelines();
    RandomPlayer player(300, 0);
    player.clicks = [](toolkit::Control& control) {
        QWidget& widget = widgetof(control);
        const QPoint middle = widget.mapTo(widget.window(), widget.rect().center());
        const QWidget* there = widget.window()->childAt(middle); // in a small window another one
        if (there != nullptr && there->objectName() != "cmdquit") {
            mouse(*widget.window(), middle);
        }
    };
    const toolkit::QtHost qthost;
    MainScreen screen(folder.path().string());
    walk([&] { toolkit::showmodal(screen); },
         [&](QWidget& front) {
             if (auto* box = qobject_cast<QMessageBox*>(&front)) {
                 const QList<QAbstractButton*> buttons = box->buttons();
                 buttons[player.answer() ? 0 : buttons.size() - 1]->click();
             } else {
                 player.act(*toolkit::topscreen());
             }
         });
    EXPECT_TRUE(player.done());
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString() << " is left open";
    }
}

} // namespace

} // namespace brindor::tests
