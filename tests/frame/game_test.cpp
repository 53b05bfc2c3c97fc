#include "frame/game.h"

#include "frame/mainscreen.h"
#include "quiz/mchoice.h"
#include "support/quiztest.h"
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
                ++counts[screen.name + ' ' + std::to_string(qtype)];
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

    // Tells a story on the main screen, and quits.
    std::string run(const std::string& story, const std::function<std::string(Screen&)>& look)
    {
        MainScreen main(folder.path().string());
        const std::string transcript = visit(
            "main", [&main] { showmodal(main); }, story, look);
        return transcript + said(host);
    }

    std::map<std::string, int> counts; // questions of each type on its screen: "mchoice 2"
};

// The used marks go on from game to game, the score does not.
TEST_F(Game, CountsItsQuestionsFromNoughtAndLogsThem)
{
    enableonly({1, 2, 7, 8, 12});
    bool right = false;
    host.persons["mchoice"] = [&right](Screen& s) {
        auto& m = static_cast<Mchoice&>(s);
        userpress(m.choice[right ? static_cast<std::size_t>(m.rightchoice) : 4]);
    };
    playgame();
    EXPECT_GE(std::accumulate(usedmarks.begin(), usedmarks.end(), 0), 5 * 12); // drawn with 14, and 2 for being wrong
    right = true;
    nquestion = 10;
    logstatus = 2;
    playgame();
    EXPECT_GE(std::accumulate(usedmarks.begin(), usedmarks.end(), 0), 5 * 12 + 10 * 18);
    EXPECT_TRUE(log().ends_with("\r\n---- Question 8\r\n---- Question 9\r\n---- Question 10\r\n"));
    host.persons["mchoice"] = [](Screen& s) { userclose(s); };
    nquestion = 1;
    playgame(); // the percentage stays what it was
    EXPECT_EQ(said(host),
              "You scored 0 out of 25 (0%)\nYou scored 50 out of 50 (100%)\nYou scored 0 out of 0 (100%)\n");
    EXPECT_EQ(std::count(host.shown.begin(), host.shown.end(), "mchoice"), 16);
    host.persons["mchoice"] = [this](Screen&) { host.wantsquit = true; }; // as the desktop's logout does
    nquestion = 10;
    playgame();
    EXPECT_EQ(std::count(host.shown.begin(), host.shown.end(), "mchoice"), 17);
    EXPECT_EQ(said(host), "");
}

// A draw of 0 becomes type 1: two chances in 14, all others one. A type that is off or that the Timeline cannot fill
// never comes.
TEST_F(Game, DrawsTheTypesThatAreOnAndCanBeFilled)
{
    logstatus = 0;
    nquestion = 2800;
    playround(1);
    std::string seen;
    for (const auto& [type, count] : counts) {
        seen += type + ", ";
        const bool first = type == "mchoice 1";
        EXPECT_NEAR(count, first ? 400 : 200, first ? 75 : 55) << type; // four standard deviations
    }
    EXPECT_EQ(seen, "mchoice 1, mchoice 12, mchoice 2, mchoice 7, mchoice 8, qmatch 10, qmatch 11, qmatch 3, qmatch 4, "
                    "qmatch 5, qmatch 9, qsort 13, qsort 6, ");
    counts.clear();
    enableonly({4, 13});
    for (PersonRec& person : people) {
        person.faction = person.occupation = 0;
    }
    playround(1);
    EXPECT_EQ(counts, (std::map<std::string, int>{{"qsort 13", 2800}}));
}

TEST_F(Game, NothingToAskIsTold)
{
    curfile = "Medieval.bd3";
    enableonly({0, 14});
    playgame();
    EXPECT_EQ(said(host), "No kind of question is selected. Select at least one with the Setup button.\n");
    enableonly({1, 13});
    tests::setnumbered(4, 4);
    playgame();
    EXPECT_EQ(said(host), "The timeline Medieval.bd3 has too few different items for the kinds of question selected. "
                          "Select other kinds with the Setup button, or another period with View/Select on the same "
                          "screen.\n");
    showquestion(14);
    EXPECT_TRUE(host.shown.empty());
}

TEST_F(Game, StartsInOrderAndEndsWithTheSettings)
{
    writefile("Classic.bd3", timelinetext());
    const std::int64_t timelinebytes = std::ssize(timelinetext());
    writefile("bdqquiz.log", "old");
    host.pictures["TITLE.BMP"] = 0;
    tests::settimeline({}, {});
    curperiod = -1;
    viewonly = 0;
    std::filesystem::current_path("/");
    faultplan = {};
    EXPECT_EQ(run("?; Command3; Command3; ?; cmdCatalog",
                  [timelinebytes](Screen& screen) {
                      EXPECT_LE(faultplan.calls, 10); // of the disk: settings looked for, log emptied, a timeline read
                      EXPECT_EQ(faultplan.opened, 2);
                      EXPECT_EQ(faultplan.bytesread, timelinebytes);
                      std::string text;
                      for (const Control* control : screen.controls) {
                          text += control->visible ? control->text + '|' : "-";
                      }
                      return text + (screen.backdrop ? "picture|" : "plain|") + std::to_string(peoplecount()) + '|' +
                             std::to_string(viewonly) + '|' + log() +
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
    EXPECT_EQ(run("?; Command1", [](Screen& screen) { return std::string(screen.backdrop ? "picture" : "plain"); }),
              missing + "plain\nYou scored 0 out of 0 (0%)\n");
    EXPECT_TRUE(std::filesystem::exists("bdq.INI"));
    std::filesystem::remove_all(folder.path());
    EXPECT_TRUE(run("", {}).starts_with("The program's folder " + folder.path().string() +
                                        " cannot be entered: No such file or directory. Check that it exists and may "
                                        "be read.\n"));
}

} // namespace brindor
