#include "frame/game.h"

#include "base/files.h"
#include "frame/mainscreen.h"
#include "frame/services/settings.h"
#include "quiz/mchoice.h"
#include "support/quiztest.h"
#include "support/story.h"
#include "timeline/writer.h"

#include <filesystem>
#include <map>
#include <numeric>

namespace brindor {

using namespace toolkit;
using tests::contentof;
using tests::said;
using tests::writefile;

class Game : public tests::QuizTest {
protected:
    Game()
    {
        tests::setnumbered(30, 30);
        for (const char* name : {"mchoice", "qsort", "qmatch"}) {
            host.persons[name] = [this](Screen& screen) {
                ++counts[qtype];
                userclose(screen);
            };
        }
    }

    static void enableonly(const std::vector<std::size_t>& types)
    {
        typeenabled.fill(0);
        for (const std::size_t type : types) {
            typeenabled[type] = -1;
        }
    }

    // Plays the questions of mchoice with answers that are all right or all wrong.
    void answer(bool right)
    {
        host.persons["mchoice"] = [right](Screen& s) {
            auto& m = static_cast<Mchoice&>(s);
            userpress(m.choice[right ? static_cast<std::size_t>(m.rightchoice) : 4]);
        };
    }

    // Tells a story on the main screen, and quits.
    std::string run(const std::string& story, const std::function<std::string()>& look)
    {
        std::string transcript;
        host.persons["main"] = [&](Screen& screen) {
            transcript = said(host);
            transcript += act(host, screen, story, look);
            userclose(screen);
        };
        MainScreen screen(folder.path().string());
        showmodal(screen);
        return transcript + said(host);
    }

    std::map<std::int16_t, int> counts; // questions of each type
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

TEST_F(Game, CountsItsQuestionsFromNoughtAndLogsThem)
{
    enableonly({1, 2, 7, 8, 12});
    answer(false);
    playgame();
    answer(true);
    nquestion = 10;
    logstatus = 2;
    playgame();
    EXPECT_EQ(said(host), "You scored 0 out of 25 (0%)\nYou scored 50 out of 50 (100%)\n");
    EXPECT_TRUE(log().ends_with("\r\n---- Question 8\r\n---- Question 9\r\n---- Question 10\r\n"));
    host.persons["mchoice"] = [](Screen& s) { userclose(s); };
    nquestion = 1;
    playgame(); // the percentage stays what it was
    EXPECT_EQ(said(host), "You scored 0 out of 0 (100%)\n");
    EXPECT_EQ(std::count(host.shown.begin(), host.shown.end(), "mchoice"), 16);
}

// A draw of 0 becomes type 1: two chances in 14, all others one. With some types off only the others come.
TEST_F(Game, DrawsTheTypes)
{
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
    ++timelinestate;
    playround(1);
    EXPECT_EQ(counts, (std::map<std::int16_t, int>{{13, 2800}}));
}

TEST_F(Game, NothingToAskIsTold)
{
    const std::string toofew =
        "The timeline Medieval.bd3 has too few different items for the kinds of question selected. Select other "
        "kinds with the Setup button, or another period with View/Select on the same screen.\n";
    curfile = "Medieval.bd3";
    enableonly({0, 14});
    playgame();
    EXPECT_EQ(said(host), "No kind of question is selected. Select at least one with the Setup button.\n");
    for (const int count : {4, 0}) {
        enableonly({1, 13});
        tests::setnumbered(count, count);
        playgame();
        EXPECT_EQ(said(host), toofew);
    }
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

TEST_F(Game, StartsInOrderAndEndsWithTheSettings)
{
    writefile("Classic.bd3", timelinetext());
    writefile("bdqquiz.log", "old");
    host.pictures["TITLE.BMP"] = 0;
    tests::settimeline({}, {});
    curperiod = -1;
    viewonly = 0;
    std::filesystem::current_path("/");
    EXPECT_EQ(run("?; Command3; Command3; ?; cmdCatalog",
                  [] {
                      std::string text;
                      for (const Control* control : topscreen()->controls) {
                          text += control->visible ? control->text + '|' : "-";
                      }
                      return text + (topscreen()->backdrop ? "picture|" : "plain|") + std::to_string(peoplecount()) +
                             '|' + std::to_string(viewonly) + '|' + log() +
                             (std::filesystem::exists("bdq.INI") ? "written" : "");
                  }),
              "Brindor History Trivia Game|Version 1.03|--Play|Setup|About|Catalog|Quit|picture|30|1|\n"
              "Brindor History Trivia Game|Version 1.03|Written by the project's contributors|Copyright (C) the "
              "project's contributors|Play|Setup|About|Catalog|Quit|picture|30|1|\n");
    EXPECT_EQ(host.viewed, std::vector<std::string>{"bdqord.txt"});
    EXPECT_EQ(contentof("bdq.INI").substr(0, 20), "1 1 5 1\r\n1 8 8 8\r\nTI");
}

TEST_F(Game, GoesOnWithoutAnyFileOrFolder)
{
    const std::string missing = "Ancient.bd3 cannot be opened: No such file or directory. Put the file into the "
                                "program's folder, or choose another period. 30 Person 29 30 Event 29\n";
    EXPECT_EQ(run("?; Command1", [] { return std::string(topscreen()->backdrop ? "picture" : "plain"); }),
              missing + "plain\nYou scored 0 out of 0 (0%)\n");
    EXPECT_TRUE(std::filesystem::exists("bdq.INI"));
    std::filesystem::remove_all(folder.path());
    EXPECT_TRUE(run("", {}).starts_with("The program's folder " + folder.path().string() +
                                        " cannot be entered: No such file or directory. Check that it exists and may "
                                        "be read.\n"));
}

// Two games in one run: the marks go on, the score does not.
TEST_F(Game, PlaysTwoGames)
{
    writefile("Ancient.bd3", timelinetext());
    answer(false);
    int marks = 0;
    const std::string told = run("?; Command1; ?; Command1; ?", [&marks] {
        enableonly({1});
        const int before = std::exchange(marks, std::accumulate(usedmarks.begin(), usedmarks.end(), 0));
        return std::string(marks >= before + 5 * 12 ? "raised" : ""); // each is drawn with 14, and 2 for a wrong answer
    });
    EXPECT_EQ(told, "\nYou scored 0 out of 25 (0%)\nraised\nYou scored 0 out of 25 (0%)\nraised\n");
}

} // namespace brindor
