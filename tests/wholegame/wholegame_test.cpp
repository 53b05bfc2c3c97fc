#include "base/random.h"
#include "frame/mainscreen.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "gallery.h"
#include "quiz/mchoice.h"
#include "support/gametest.h"
#include "support/timelines.h"
#include "timeline/writer.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"

#include <QListWidget>
#include <QMessageBox>

#include <string>
#include <vector>

namespace brindor::tests {

class WholeGame : public GameTest {
protected:
    WholeGame()
    {
        setnumbered(40, 40);
        writefile("Ancient.bd3", timelinetext());
        nquestion = 10;
        writesettings();
    }

    void act(QWidget& window)
    {
        const std::string name = window.objectName().toStdString();
        if (name == "message") {
            closing.push_back(static_cast<QMessageBox&>(window).text().toStdString());
            window.close();
        } else if (name == "main") {
            seedrandom(7); // the start has seeded it from the clock
            click(window, games++ < 2 ? "Command1" : "cmdquit");
        } else if (name == "mchoice") {
            answermchoice(window);
        } else {
            if (name == "qsort") {
                pushup(*window.findChild<QListWidget*>("List1"));
            } else if (name == "qmatch") {
                match(window);
            }
            (name == "showscor" ? scores : answered) += 1;
            click(window, "Command1");
        }
    }

    // One thing a time: help, right, wrong, skip, another size, which the next question has, the title bar.
    void answermchoice(QWidget& window)
    {
        const auto& screen = static_cast<const Mchoice&>(*toolkit::topscreen());
        const int way = way_++ % 7;
        switch (way) {
        case 0:
            return click(window, "cmdhelp");
        case 3:
            return click(window, "Command1");
        case 4:
            return window.resize(640, 560);
        case 6:
            EXPECT_EQ(screen.width, wide_);
            window.close();
            return;
        default:
            wide_ = screen.width;
            ++answered;
            click(window, toolkit::indexed("choice", (screen.rightchoice + (way == 2 ? 1 : 0)) % 5));
        }
    }

    static void pushup(QListWidget& list)
    {
        const QString second = list.item(1)->text();
        const QPoint at = list.viewport()->mapTo(list.window(), list.visualItemRect(list.item(1)).center());
        mouse(*list.window(), at, at);
        EXPECT_EQ(list.item(0)->text(), second);
    }

    static void match(QWidget& window)
    {
        drag(window, "Btn1(4)", "Label2(4)");
        click(window, "Btn1(0)");
        click(window, "Label2(1)");
        for (const auto& [bar, row] : {std::pair{"Btn1(4)", "Label2(4)"}, {"Btn1(0)", "Label2(1)"}}) {
            EXPECT_EQ(window.findChild<QWidget*>(bar)->y(), window.findChild<QWidget*>(row)->y());
        }
    }

    std::vector<std::string> closing;
    int games = 0;
    int answered = 0;
    int scores = 0;

private:
    int way_ = 0;
    double wide_ = 0;
};

TEST_F(WholeGame, TheMouseCannotPlayTwoGamesOrTheirScoreAndLogAreWrong)
{
    const toolkit::QtHost qthost;
    MainScreen screen(folder.path().string());
    walk([&] { toolkit::showmodal(screen); }, [this](QWidget& window) { act(window); });
    EXPECT_EQ(games, 3);
    EXPECT_EQ(scores, answered);
    EXPECT_GT(answered, 8);
    ASSERT_GE(closing.size(), 3U);
    EXPECT_EQ(closing[0], "Click on the best description.\nClick on skip to move to the next question");
    EXPECT_EQ(closing.back(), "You scored " + std::to_string(players[0].right) + " out of " +
                                  std::to_string(players[0].asked) + " (" + std::to_string(players[0].percent) + "%)");
    std::size_t questions = 0;
    for (std::size_t at = 0; (at = log().find("---- Question ", at)) != std::string::npos; ++at) {
        ++questions;
    }
    EXPECT_EQ(questions, 20U);
    EXPECT_EQ(contentof("bdq.INI").substr(0, 8), "1 1 10 1");
}

} // namespace brindor::tests
