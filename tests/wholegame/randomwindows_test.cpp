#include "frame/mainscreen.h"
#include "support/gametest.h"
#include "support/randomplayer.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"
#include "toolkit/windows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

namespace brindor::tests {

using RandomWindows = GameTest;

TEST_F(RandomWindows, SomethingThatAUserDoesBringsTheWindowsOutOfOrder)
{
    RandomPlayer::writetimelines();
    RandomPlayer player(seedwanted(), questionswanted(300), 0);
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
    EXPECT_GT(player.questionsasked(), 0);
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString() << " is left open";
    }
}

} // namespace brindor::tests
