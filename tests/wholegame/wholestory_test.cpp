#include "frame/mainscreen.h"
#include "support/gametest.h"
#include "support/randomplayer.h"
#include "timeline/writer.h"

#include <csignal>
#include <regex>
#include <sys/wait.h>
#include <unistd.h>

namespace brindor::tests {

using namespace toolkit;

using WholeStory = GameTest;

// A whole story: start, setup, another period and its records, a game of three questions, quit. After each: the game
// has gone on to its end, what could not be written or read was told, the settings are the old ones or the new ones and
// never a part, and the timelines are untouched.
TEST_F(WholeStory, AFailedFileCallIsNotToldOrLosesSomething)
{
    setnumbered(12, 12);
    const std::string timeline = timelinetext();
    writefile("Ancient.bd3", timeline);
    writefile("Classic.bd3", timeline);
    nquestion = 3;
    writesettings();
    const std::string settings = contentof("bdq.INI");
    host.pictures["TITLE.BMP"] = 0;
    std::string told; // all messages, and the steps of the story that were refused
    const auto does = [&](const char* story) {
        return [&, story](Screen& screen) { told += act(host, screen, story); };
    };
    auto& persons = host.persons;
    persons["main"] = does("cmdsetup; Command1; cmdquit");
    persons["setup"] = does("nquestion=4; cmdEdit; cmdok"); // what the player changes in this run
    persons["bdqedit"] = does("Option1(1); cmdPeople; cmdEvents; Command1");
    persons["PEntry"] = persons["eEntry"] = does("cmdNext; esc");
    persons["mchoice"] = [](Screen& screen) { press(controlof(screen, "choice(4)")); };
    persons["qsort"] = persons["qmatch"] = persons["showscor"] = does("Command1");
    const auto play = [&](FaultPlan plan) {
        told.clear();
        forgetfailures();
        writefile("bdq.INI", settings);
        faultplan = plan;
        MainScreen screen(folder.path().string());
        showmodal(screen);
        const std::int64_t calls = std::exchange(faultplan, {}).calls;
        told += said(host);
        return calls;
    };
    const std::int64_t calls = play({});
    ASSERT_EQ(contentof("bdq.INI").substr(0, 13), "1 1 4 1\r\n1 8 ");
    ASSERT_TRUE(std::regex_match(told, std::regex("You scored .*\n"))) << told;
    ASSERT_GT(calls, 30);
    for (std::int64_t n = 1; n <= calls; ++n) {
        for (const bool forever : {false, true}) {
            SCOPED_TRACE("call " + std::to_string(n) + (forever ? " and all after it" : ""));
            play({n, forever, 0});
            EXPECT_EQ(told.find('!'), std::string::npos) << told;
            EXPECT_EQ(contentof("Ancient.bd3") + contentof("Classic.bd3"), timeline + timeline);
            EXPECT_FALSE(std::filesystem::exists("bdq.INI.new"));
            const std::string now = contentof("bdq.INI");
            EXPECT_EQ(std::count(now.begin(), now.end(), '\n'), 25) << now;
            const bool logged = contentof("bdqquiz.log").find("---- Question 4") != std::string::npos;
            const bool silent = std::regex_match(told, std::regex("(You scored .*\n)?"));
            EXPECT_TRUE(!silent || (logged && now.starts_with("1 1 4 1\r\n1 ")))
                << "something is missing and nothing was said: " << told;
        }
    }
    persons["setup"] = [&](Screen& screen) { // the settings become a folder and the timeline is cut under the game
        std::filesystem::remove("bdq.INI");
        std::filesystem::create_directory("bdq.INI");
        writefile("Classic.bd3", timeline.substr(0, timeline.size() / 2));
        does("cmdEdit; cmdok")(screen);
    };
    play({});
    EXPECT_TRUE(std::regex_match(told, std::regex("Classic.bd3, line 185: the file ends here.*\nbdq.INI cannot be "
                                                  "written: Not a regular file.*\nYou scored .*\n")))
        << told;
}

// BRINDOR_KILLS makes it longer.
TEST_F(WholeStory, AProgramKilledWhileItWritesLeavesAPartOfTheSettings)
{
    const char* wanted = std::getenv("BRINDOR_KILLS");
    const std::string files[] = {std::string(3000, 'x'), "1 1 4 1\r\n"};
    for (int kill = 0; kill < (wanted != nullptr ? std::atoi(wanted) : 50); ++kill) {
        ASSERT_TRUE(replacefile("bdq.INI", files[1]).value.has_value());
        ASSERT_FALSE(std::filesystem::exists("bdq.INI.new"));
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        for (std::size_t i = 0; child == 0; ++i) {
            replacefile("bdq.INI", files[i % 2]);
        }
        ::usleep(static_cast<useconds_t>(kill * 59 % 3001));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        ASSERT_NE(std::find(std::begin(files), std::end(files), contentof("bdq.INI")), std::end(files)) << kill;
    }
}

using RandomPlay = GameTest;

TEST_F(RandomPlay, SomethingThatAUserDoesBringsTheGameOutOfOrder)
{
    RandomPlayer::writetimelines();
#ifdef __SANITIZE_ADDRESS__
    constexpr double slowest = 150; // milliseconds, of a program that the sanitizers make slower
#else
    constexpr double slowest = 50;
#endif
    RandomPlayer player(2000, slowest);
    for (const char* name : {"main", "setup", "bdqedit", "curStats", "PEntry", "eEntry", "ImgDisp", "mchoice", "qsort",
                             "qmatch", "showscor"}) {
        host.persons[name] = [&player](Screen& screen) { player.act(screen); };
    }
    host.whilemessage = [&](const Message&) { host.answers.assign(1, player.answer()); };
    host.patience = std::numeric_limits<int>::max();
    host.pictures["TITLE.BMP"] = 0;
    MainScreen screen(folder.path().string());
    showmodal(screen);
    EXPECT_TRUE(player.done());
}

} // namespace brindor::tests
