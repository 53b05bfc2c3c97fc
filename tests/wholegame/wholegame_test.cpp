#include "base/random.h"
#include "frame/mainscreen.h"
#include "frame/services/placement.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "quiz/mchoice.h"
#include "support/gametest.h"
#include "support/timelines.h"
#include "timeline/writer.h"
#include "toolkit/operations.h"
#include "toolkit/qt/qthost.h"

#include <QAbstractButton>
#include <QApplication>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace brindor {

namespace {

// Someone with a mouse, who acts on whatever window is in front, one action a tick.
class Person : public QObject {
public:
    std::function<void(QWidget& window)> act;

    void start()
    {
        QTimer::singleShot(1, this, [this] {
            start();
            QWidget* window = infront();
            // A mouse event lets the next tick in; it waits as long as the same window is being acted on.
            if (window != nullptr && window != acting_ && window->isVisible() && window->windowHandle()->isExposed() &&
                usable(*window)) {
                QWidget* before = std::exchange(acting_, window);
                act(*window);
                acting_ = before;
            }
        });
    }

    // The message or the screen that is on top; the main screen is modal to nothing.
    static QWidget* infront()
    {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            return modal;
        }
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->objectName() == "main") {
                return window;
            }
        }
        return nullptr;
    }

    // A message that has just been answered is gone from sight a little before it is over.
    static bool usable(const QWidget& window)
    {
        const toolkit::Screen* screen = toolkit::topscreen();
        return qobject_cast<const QMessageBox*>(&window) != nullptr ||
               (screen != nullptr && window.objectName().toStdString() == screen->name);
    }

    // Presses, moves and releases on the window itself, as a mouse does. What the press opens runs inside it.
    static void drag(QWidget& window, const QPoint& from, const QPoint& to)
    {
        const QPointer<QWindow> handle = window.windowHandle();
        QTest::mousePress(handle, Qt::LeftButton, {}, from);
        for (int step = 1; handle && step <= 4 && from != to; ++step) {
            QTest::mouseMove(handle, from + (to - from) * step / 4);
        }
        if (handle) {
            QTest::mouseRelease(handle, Qt::LeftButton, {}, to);
        }
    }

    static QPoint middleof(QWidget& window, const char* name)
    {
        auto* widget = window.findChild<QWidget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget->mapTo(&window, widget->rect().center());
    }

    static void click(QWidget& window, const char* name)
    {
        drag(window, middleof(window, name), middleof(window, name));
    }

private:
    QWidget* acting_ = nullptr;
};

} // namespace

class WholeGame : public tests::GameTest {
protected:
    WholeGame()
    {
        tests::setnumbered(40, 40);
        tests::writefile("Ancient.bd3", timelinetext());
        nquestion = 10;
        writesettings();
    }

    void answermchoice(QWidget& window)
    {
        const auto& screen = static_cast<Mchoice&>(*toolkit::topscreen());
        const int way = ways_["mchoice"]++ % 6;
        const int right = screen.rightchoice;
        const auto choose = [&window](int i) {
            ++answered;
            Person::click(window, toolkit::indexed("choice", i).c_str());
        };
        switch (way) {
        case 0: // right, after a look at the help
            if (helps++ == 0) {
                --ways_["mchoice"];
                return Person::click(window, "cmdhelp");
            }
            return choose(right);
        case 1:
            return choose((right + 1) % 5);
        case 2:
            return Person::click(window, "Command1"); // skip
        case 3:                                       // right, once the window has taken its new size
            if (window.width() != 640) {
                --ways_["mchoice"];
                return window.resize(640, 560);
            }
            wide = screen.width;
            return choose(right);
        case 4:
            EXPECT_EQ(screen.width, wide); // the size of the last one
            window.close();
            return;
        default:
            return choose(4);
        }
    }

    static void answerqsort(QWidget& window)
    {
        auto* list = window.findChild<QListWidget*>("List1");
        ASSERT_NE(list, nullptr);
        const QString second = list->item(1)->text();
        const QPoint line = list->viewport()->mapTo(&window, list->visualItemRect(list->item(1)).center());
        Person::drag(window, line, line);
        EXPECT_EQ(list->item(0)->text(), second);
        ++answered;
        Person::click(window, "Command1");
    }

    static void answerqmatch(QWidget& window)
    {
        Person::drag(window, Person::middleof(window, "Btn1(4)"), Person::middleof(window, "Label2(4)"));
        Person::click(window, "Btn1(0)");
        Person::click(window, "Label2(1)");
        const auto* bar = window.findChild<QWidget*>("Btn1(4)");
        const auto* row = window.findChild<QWidget*>("Label2(4)");
        EXPECT_EQ(bar->y(), row->y());
        ++answered;
        Person::click(window, "Command1");
    }

    std::map<std::string, int> ways_;
    static inline int answered = 0;
    int helps = 0;
    double wide = 0;
};

// Two games in one run, by mouse through real windows: wrong and right answers, skip, help, a question closed by its
// title bar, a resize between questions.
TEST_F(WholeGame, TwoGamesByMouse)
{
    constexpr std::uint64_t seedofgame = 7;
    const toolkit::QtHost qthost;
    std::vector<std::string> closing;
    int games = 0;
    int scores = 0;
    Person person;
    person.act = [&](QWidget& window) {
        if (auto* box = qobject_cast<QMessageBox*>(&window)) {
            closing.push_back(box->text().toStdString());
            const QAbstractButton* button = box->buttons().value(0);
            const QPoint ok = button->mapTo(box, button->rect().center());
            return Person::drag(window, ok, ok);
        }
        const std::string name = window.objectName().toStdString();
        if (name == "main") {
            seedrandom(seedofgame); // the start has seeded it from the clock
            return Person::click(window, games++ < 2 ? "Command1" : "cmdquit");
        }
        if (name == "mchoice") {
            return answermchoice(window);
        }
        if (name == "qsort") {
            return answerqsort(window);
        }
        if (name == "qmatch") {
            return answerqmatch(window);
        }
        ASSERT_EQ(name, "showscor");
        ++scores;
        Person::click(window, "Command1");
    };
    person.start();
    MainScreen screen(folder.path().string());
    toolkit::showmodal(screen);

    EXPECT_EQ(games, 3);
    EXPECT_EQ(scores, answered);
    EXPECT_GT(answered, 8);
    ASSERT_EQ(closing.size(), 3U);
    EXPECT_EQ(closing[0], "Click on the best description.\nClick on skip to move to the next question");
    EXPECT_EQ(closing[2], "You scored " + std::to_string(players[0].right) + " out of " +
                              std::to_string(players[0].asked) + " (" + std::to_string(players[0].percent) + "%)");
    EXPECT_LE(players[0].asked, 250);
    std::size_t questions = 0;
    for (std::size_t at = 0; (at = log().find("---- Question ", at)) != std::string::npos; ++at) {
        ++questions;
    }
    EXPECT_EQ(questions, 20U);
    EXPECT_EQ(tests::contentof("bdq.INI").substr(0, 8), "1 1 10 1");
}

} // namespace brindor

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
