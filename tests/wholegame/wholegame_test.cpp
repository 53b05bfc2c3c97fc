#include "base/random.h"
#include "frame/mainscreen.h"
#include "gallery.h"
#include "quiz/mchoice.h"
#include "quiz/qmatch.h"
#include "support/gametest.h"
#include "support/randomplayer.h"
#include "timeline/writer.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>
#include <QMessageBox>

#include <string>
#include <utility>

// Games from the main screen to its end, in windows.
namespace brindor::tests {

namespace {

using WholeGame = GameTest;

// A line is pushed up, one bar is dragged to its row and one is brought there with two clicks.
void answer(QWidget& window)
{
    const toolkit::Screen& screen = *toolkit::topscreen();
    if (screen.name == "mchoice") {
        return click(window, toolkit::indexed("choice", static_cast<const Mchoice&>(screen).rightchoice));
    }
    if (screen.name == "qmatch") {
        const auto& owner = static_cast<const Qmatch&>(screen).owner;
        drag(window, toolkit::indexed("Btn1", owner[0]), "Label2(0)");
        click(window, toolkit::indexed("Btn1", owner[4]));
        click(window, "Label2(4)");
    } else if (const auto* list = window.findChild<QListWidget*>("List1")) {
        mouse(*list->viewport(), list->visualItemRect(list->item(4)).center());
    }
    click(window, "Command1");
}

TEST_F(WholeGame, TheMouseCannotPlayAGameOrItsResultOrLogIsAnother)
{
    setnumbered(40, 40);
    writefile("Ancient.bd3", timelinetext());
    nquestion = 10;
    writesettings();
    bool played = false;
    std::string said;
    const toolkit::QtHost qthost;
    MainScreen screen(folder.path().string());
    walk([&] { toolkit::showmodal(screen); },
         [&](QWidget& window) {
             if (const auto* message = qobject_cast<QMessageBox*>(&window)) {
                 said += message->text().toStdString();
                 window.close();
             } else if (window.objectName() == "main") {
                 seedrandom(7); // the start has seeded it from the clock
                 click(window, std::exchange(played, true) ? "cmdquit" : "Command1");
             } else {
                 answer(window);
             }
         });
    EXPECT_EQ(said, "You scored 73 out of 145 (50%)");
    EXPECT_NE(log().find("---- Question 10"), std::string::npos);
}

TEST_F(WholeGame, SomethingThatAUserDoesBringsTheWindowsOutOfOrder)
{
    RandomPlayer::writetimelines();
    RandomPlayer player(300, 0);
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

} // namespace

} // namespace brindor::tests
