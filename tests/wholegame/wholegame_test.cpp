#include "frame/mainscreen.h"
#include "support/gametest.h"
#include "support/randomplayer.h"
#include "toolkit/windows.h"

#include <QAbstractButton>
#include <QMessageBox>

// Games from the main screen to its end, in windows and with the mouse.
namespace brindor::tests {

using WholeGame = GameTest;

TEST_F(WholeGame, SomethingThatAUserDoesBringsTheWindowsOutOfOrder)
{
    RandomPlayer::writetimelines();
    RandomPlayer player(300, 0);
    player.clicks = [](toolkit::Control& control) {
        QWidget& widget = widgetof(control);
        const QPoint middle = widget.mapTo(widget.window(), widget.rect().center());
        if (widget.window()->childAt(middle) == &widget) {
            mouse(*widget.window(), middle);
        } else { // in a small window another lies there, or nothing
            click(control);
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

} // namespace brindor::tests
