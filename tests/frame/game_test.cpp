#include "frame/game.h"

#include "base/files.h"
#include "frame/mainscreen.h"
#include "frame/services/score.h"
#include "frame/services/settings.h"
#include "quiz/mchoice.h"
#include "support/quiztest.h"
#include "timeline/reader.h"
#include "timeline/writer.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <numeric>

namespace brindor {

using namespace toolkit;
using tests::contentof;
using tests::find;
using tests::writefile;

class Game : public tests::QuizTest {
protected:
    Game()
    {
        tests::setnumbered(30, 30);
        for (const char* name : {"mchoice", "qsort", "qmatch"}) {
            host.persons[name] = [](Screen& screen) { userclose(screen); };
        }
    }

    void enableonly(const std::vector<std::int16_t>& types)
    {
        typeenabled.fill(0);
        for (const std::int16_t type : types) {
            typeenabled[static_cast<std::size_t>(type)] = -1;
        }
    }

    void answerwrong()
    {
        host.persons["mchoice"] = [](Screen& s) { userpress(find<OptionButton>(s, "choice(4)")); };
    }
    void answerright()
    {
        host.persons["mchoice"] = [](Screen& s) {
            auto& m = static_cast<Mchoice&>(s);
            userpress(m.choice[static_cast<std::size_t>(m.rightchoice)]);
        };
    }
};

TEST_F(Game, EveryTypeHasItsScreen)
{
    std::string screens;
    for (std::int16_t type = -1; type <= 14; ++type) {
        host.shown.clear();
        showquestion(type);
        EXPECT_EQ(qtype, type);
        screens += host.shown.empty() ? "- " : host.shown.front() + ' ';
    }
    EXPECT_EQ(screens,
              "- - mchoice mchoice qmatch qmatch qmatch qsort mchoice mchoice qmatch qmatch qmatch mchoice qsort - ");
}

TEST_F(Game, OfWrongAndRightAndSkippedQuestions)
{
    enableonly({1, 2, 7, 8, 12});
    answerwrong();
    playgame();
    EXPECT_EQ(host.messages.back().text, "You scored 0 out of 25 (0%)");
    EXPECT_EQ(host.messages.back().title, "Brindor Trivia Game");
    answerright();
    nquestion = 10;
    playgame(); // starts from 0 again
    EXPECT_EQ(host.messages.back().text, "You scored 50 out of 50 (100%)");
    EXPECT_EQ(host.messages.size(), 2U);
    host.persons["mchoice"] = [](Screen& s) { userclick(find<Button>(s, "Command1")); };
    nquestion = 1;
    host.shown.clear();
    playgame(); // the percentage stays what it was
    EXPECT_EQ(host.messages.back().text, "You scored 0 out of 0 (100%)");
    EXPECT_EQ(host.shown, std::vector<std::string>{"mchoice"});
}

TEST_F(Game, LogsTheQuestionsByLevel)
{
    enableonly({2});
    answerwrong();
    nquestion = 2;
    logstatus = 2;
    playgame();
    EXPECT_EQ(log(), "---- Question 1\r\n---- Question 2\r\n");
}

// A draw of 0 becomes type 1: two chances in 14, all others one. With some types off only the others come.
TEST_F(Game, DrawsTheTypes)
{
    std::map<std::int16_t, int> counts;
    for (const char* name : {"mchoice", "qsort", "qmatch"}) {
        host.persons[name] = [&counts](Screen& screen) {
            ++counts[qtype];
            userclose(screen);
        };
    }
    logstatus = 0;
    nquestion = 2800;
    playround(1);
    EXPECT_EQ(counts.size(), 13U);
    for (const auto& [type, count] : counts) {
        EXPECT_NEAR(count, type == 1 ? 400 : 200, type == 1 ? 75 : 55) << type; // four standard deviations
    }
    counts.clear();
    enableonly({2, 13});
    playround(1);
    EXPECT_EQ(counts.size(), 2U);
    counts.clear();
    enableonly({4, 13}); // the Timeline cannot fill type 4
    for (PersonRec& person : people) {
        person.faction = person.occupation = 0;
    }
    playround(1);
    EXPECT_EQ(counts, (std::map<std::int16_t, int>{{13, 2800}}));
}

TEST_F(Game, NothingToAskIsTold)
{
    curfile = "Medieval.bd3";
    enableonly({0, 14});
    playgame();
    ASSERT_EQ(host.messages.size(), 1U);
    EXPECT_EQ(host.messages[0].text, "No kind of question is selected. Select at least one with the Setup button.");
    enableonly({1, 9});
    tests::setnumbered(4, 4);
    playgame();
    ASSERT_EQ(host.messages.size(), 2U);
    EXPECT_EQ(host.messages[1].text,
              "The timeline Medieval.bd3 has too few different items for the kinds of question selected. Select other "
              "kinds with the Setup button, or another period with View/Select on the same screen.");
    tests::settimeline({}, {});
    playgame();
    EXPECT_EQ(host.messages.size(), 3U);
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Game, EndsWhenTheDesktopWantsIt)
{
    host.persons["mchoice"] = host.persons["qsort"] =
        host.persons["qmatch"] = [this](Screen&) { host.wantsquit = true; };
    playgame();
    EXPECT_EQ(host.shown.size(), 1U);
    EXPECT_TRUE(host.messages.empty());
}

class MainScreenTest : public Game {
protected:
    void run(const std::function<void(MainScreen&)>& act)
    {
        host.persons["main"] = [&act](Screen& screen) {
            act(static_cast<MainScreen&>(screen));
            if (!screen.closed) {
                userclick(find<Button>(screen, "cmdquit"));
            }
        };
        MainScreen screen(folder.path().string());
        showmodal(screen);
    }
};

TEST_F(MainScreenTest, StartsInOrderAndEndsWithTheSettings)
{
    writefile("Classic.bd3", timelinetext());
    writefile("bdqquiz.log", "old");
    host.pictures["TITLE.BMP"] = 0;
    tests::settimeline({}, {});
    std::filesystem::current_path("/");
    run([this](MainScreen& s) {
        EXPECT_LE(faultplan.calls, 15); // of the disk: settings looked for, log emptied, one timeline read
        EXPECT_EQ(s.caption, "Brindor History Trivia Game");
        EXPECT_EQ(s.label1.text, "Brindor History Trivia Game");
        EXPECT_EQ(s.label2.text, "Version 1.03");
        EXPECT_EQ(s.cmdcatalog.text + '|' + s.cmdcatalog.tooltip, "Catalog|View Quorvel Software Catalog");
        EXPECT_NE(s.backdrop, nullptr);
        EXPECT_EQ(npeople, 30);
        EXPECT_EQ(curperiod, 1);
        EXPECT_EQ(viewonly, 1);
        EXPECT_EQ(contentof("bdqquiz.log"), "");
        EXPECT_FALSE(s.label3.visible || s.label4.visible);
        for (int click = 0; click < 2; ++click) {
            userclick(s.command3);
            EXPECT_TRUE(s.label3.visible && s.label4.visible);
        }
        userclick(s.cmdcatalog);
        EXPECT_EQ(host.viewed, std::vector<std::string>{"bdqord.txt"});
        EXPECT_FALSE(std::filesystem::exists("bdq.INI"));
        userclose(s);
    });
    EXPECT_EQ(contentof("bdq.INI").substr(0, 20), "1 1 5 1\r\n1 8 8 8\r\nTI");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(MainScreenTest, GoesOnWithoutAnyFile)
{
    run([this](MainScreen& s) {
        EXPECT_EQ(s.backdrop, nullptr);
        userclick(s.command1);
        EXPECT_FALSE(s.closed);
        EXPECT_EQ(host.messages.size(), 2U); // the missing timeline, and nothing to ask
    });
    EXPECT_TRUE(std::filesystem::exists("bdq.INI"));
}

// Two games in one run: the marks go on, the score does not.
TEST_F(MainScreenTest, PlaysTwoGames)
{
    writefile("Ancient.bd3", timelinetext());
    answerwrong();
    run([this](MainScreen& s) {
        enableonly({1});
        userclick(s.command1);
        const int marks = std::accumulate(usedmarks.begin(), usedmarks.end(), 0);
        userclick(s.command1);
        EXPECT_GE(std::accumulate(usedmarks.begin(), usedmarks.end(), 0), marks + 5 * 12); // drawn 14, wrong 2
        EXPECT_EQ(host.messages.back().text, "You scored 0 out of 25 (0%)");
    });
}

} // namespace brindor
