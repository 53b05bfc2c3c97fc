#include "frame/mainscreen.h"
#include "support/gametest.h"
#include "support/randomplayer.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <iostream>

namespace brindor {

namespace {

// Lets the random player act on the windows: one step whenever the event loop is idle. What a step opens runs inside
// the step.
class WindowPlayer : public QObject {
public:
    explicit WindowPlayer(tests::RandomPlayer& player) : player_(player) {}

    void start()
    {
        QTimer::singleShot(0, this, [this] {
            start();
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                const QList<QAbstractButton*> buttons = box->buttons();
                buttons[player_.answer() ? 0 : buttons.size() - 1]->click();
            } else if (toolkit::Screen* screen = toolkit::topscreen()) {
                player_.act(*screen);
            }
        });
    }

private:
    tests::RandomPlayer& player_;
};

} // namespace

class RandomWindows : public tests::GameTest {
protected:
    RandomWindows() { tests::RandomPlayer::writetimelines(); }
};

TEST_F(RandomWindows, NothingThatAUserDoesBringsTheWindowsOutOfOrder)
{
    tests::RandomPlayer player(tests::seedwanted(), tests::questionswanted(300), 0);
    const toolkit::QtHost qthost;
    WindowPlayer person(player);
    person.start();
    MainScreen screen(folder.path().string());
    toolkit::showmodal(screen);
    EXPECT_GT(player.questionsasked(), 0);
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString() << " is left open";
    }
}

} // namespace brindor
