#include "support/randomplayer.h"

#include "frame/mainscreen.h"
#include "support/gametest.h"
#include "toolkit/operations.h"

#include <limits>

namespace brindor {

using RandomPlay = tests::GameTest;

TEST_F(RandomPlay, SomethingThatAUserDoesBringsTheGameOutOfOrder)
{
    tests::RandomPlayer::writetimelines();
#ifdef __SANITIZE_ADDRESS__
    constexpr double slowest = 150; // milliseconds, of a program that the sanitizers make slower
#else
    constexpr double slowest = 50;
#endif
    tests::RandomPlayer player(tests::seedwanted(), tests::questionswanted(2000), slowest);
    for (const char* name : {"main", "setup", "bdqedit", "curStats", "PEntry", "eEntry", "ImgDisp", "mchoice", "qsort",
                             "qmatch", "showscor"}) {
        host.persons[name] = [&player](toolkit::Screen& screen) { player.act(screen); };
    }
    host.whilemessage = [&](const toolkit::Message&) { host.answers.assign(1, player.answer()); };
    host.patience = std::numeric_limits<int>::max();
    host.pictures["TITLE.BMP"] = 0;
    MainScreen screen(folder.path().string());
    toolkit::showmodal(screen);
    EXPECT_GT(player.questionsasked(), 0);
}

} // namespace brindor
