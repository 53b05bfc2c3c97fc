#include "base/files.h"
#include "frame/mainscreen.h"
#include "frame/services/failures.h"
#include "frame/services/settings.h"
#include "support/gametest.h"
#include "support/timelines.h"
#include "timeline/writer.h"
#include "toolkit/operations.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

namespace brindor {

using namespace toolkit;
using tests::contentof;
using tests::find;
using tests::writefile;

// A whole story: start, setup, another period and its records, a game of three questions, quit.
class Faults : public tests::GameTest {
protected:
    Faults()
    {
        auto& persons = host.persons;
        tests::setnumbered(12, 12);
        timeline_ = timelinetext();
        writefile("Ancient.bd3", timeline_);
        writefile("Classic.bd3", timeline_);
        nquestion = 3;
        writesettings();
        settings_ = contentof("bdq.INI");
        host.pictures["TITLE.BMP"] = 0;

        persons["main"] = [this](Screen& screen) {
            static const std::array<const char*, 3> clicks = {"cmdsetup", "Command1", "cmdquit"};
            click(screen, clicks[std::min<std::size_t>(clicked_++, 2)]);
        };
        persons["setup"] = [this](Screen& screen) {
            usertype(find<TextBox>(screen, "nquestion"), "4"); // what the player changes in this run
            click(screen, std::exchange(chosen_, true) ? "cmdok" : "cmdEdit");
        };
        persons["bdqedit"] = [](Screen& screen) {
            userclick(find<OptionButton>(screen, "Option1(1)"));
            for (const char* button : {"cmdPeople", "cmdEvents", "Command1"}) {
                click(screen, button);
            }
        };
        persons["PEntry"] = persons["eEntry"] = [](Screen& screen) {
            click(screen, "cmdNext");
            userclose(screen);
        };
        persons["mchoice"] = [](Screen& screen) { userpress(find<OptionButton>(screen, "choice(4)")); };
        persons["qsort"] = persons["qmatch"] = persons["showscor"] = [](Screen& s) { click(s, "Command1"); };
    }

    static void click(Screen& screen, const char* button) { userclick(find<Button>(screen, button)); }

    bool told(const std::string& begin) const
    {
        return std::any_of(host.messages.begin(), host.messages.end(),
                           [&begin](const Message& message) { return message.text.starts_with(begin); });
    }

    void play(FaultPlan plan)
    {
        clicked_ = 0;
        chosen_ = false;
        host.messages.clear();
        host.shown.clear();
        forgetfailures();
        writefile("bdq.INI", settings_);
        faultplan = plan;
        MainScreen screen(folder.path().string());
        showmodal(screen);
        calls_ = faultplan.calls;
        faultplan = {};
    }

    std::string timeline_;
    std::string settings_;
    std::size_t clicked_ = 0;
    bool chosen_ = false;
    std::int64_t calls_ = 0;
};

// After each: the game has gone on to its end, what could not be written or read was told, the settings are the old
// ones or the new ones and never a part, and the timelines are untouched.
TEST_F(Faults, AFailedFileCallIsNotToldOrLosesSomething)
{
    play({});
    const std::string kept = contentof("bdq.INI");
    ASSERT_EQ(kept.substr(0, 13), "1 1 4 1\r\n1 8 ");
    ASSERT_EQ(host.messages.size(), 1U) << "only the result of the game";
    const std::int64_t calls = calls_;
    ASSERT_GT(calls, 30);
    for (std::int64_t n = 1; n <= calls; ++n) {
        for (const bool forever : {false, true}) {
            SCOPED_TRACE("call " + std::to_string(n) + (forever ? " and all after it" : ""));
            play({n, forever, 0});
            EXPECT_EQ(clicked_, 3U);
            EXPECT_EQ(contentof("Ancient.bd3"), timeline_);
            EXPECT_EQ(contentof("Classic.bd3"), timeline_);
            EXPECT_FALSE(std::filesystem::exists("bdq.INI.new"));
            const std::string now = contentof("bdq.INI");
            EXPECT_EQ(std::count(now.begin(), now.end(), '\n'), 25) << now;
            const std::size_t results = told("You scored ") ? 1 : 0;
            const bool logged = contentof("bdqquiz.log").find("---- Question 4") != std::string::npos;
            EXPECT_TRUE(host.messages.size() > results || (logged && now.starts_with("1 1 4 1\r\n1 ")))
                << "something is missing and nothing was said";
        }
    }
}

// The settings file is exchanged for a folder, and the timeline is cut, while the program runs.
TEST_F(Faults, AFileThatChangesUnderTheGameIsNotTold)
{
    host.persons["setup"] = [this](Screen& screen) {
        std::filesystem::remove("bdq.INI");
        std::filesystem::create_directory("bdq.INI");
        writefile("Classic.bd3", timeline_.substr(0, timeline_.size() / 2));
        click(screen, std::exchange(chosen_, true) ? "cmdok" : "cmdEdit");
    };
    play({});
    ASSERT_EQ(clicked_, 3U);
    ASSERT_GE(host.messages.size(), 3U);
    EXPECT_TRUE(host.messages.front().text.starts_with("Classic.bd3, line ")) << host.messages.front().text;
    EXPECT_TRUE(told("bdq.INI cannot be written: Not a regular file"));
}

// BRINDOR_KILLS makes it longer.
TEST_F(Faults, AProgramKilledWhileItWritesLeavesAPartOfTheSettings)
{
    const char* wanted = std::getenv("BRINDOR_KILLS");
    const int kills = wanted != nullptr ? std::atoi(wanted) : 50;
    std::mt19937 random(1);
    const std::string other = std::string(3000, 'x');
    for (int kill = 0; kill < kills; ++kill) {
        writefile("bdq.INI", settings_);
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                replacefile("bdq.INI", other);
                replacefile("bdq.INI", settings_);
            }
        }
        ::usleep(static_cast<useconds_t>(random() % 3000));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const std::string left = contentof("bdq.INI");
        ASSERT_TRUE(left == settings_ || left == other) << "kill " << kill << ": " << left;
        ASSERT_TRUE(replacefile("bdq.INI", settings_).value.has_value());
        ASSERT_FALSE(std::filesystem::exists("bdq.INI.new"));
    }
}

} // namespace brindor
