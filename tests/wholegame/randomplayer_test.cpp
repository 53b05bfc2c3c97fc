#include "support/randomplayer.h"

#include "frame/mainscreen.h"
#include "support/gametest.h"
#include "toolkit/operations.h"

#include <cstdlib>
#include <iostream>
#include <limits>
#include <random>

namespace brindor {

namespace {

std::uint64_t wanted(const char* variable, std::uint64_t otherwise)
{
    const char* text = std::getenv(variable);
    return text == nullptr ? otherwise : std::strtoull(text, nullptr, 10);
}

} // namespace

class RandomPlay : public tests::GameTest {
protected:
    RandomPlay() { tests::RandomPlayer::writetimelines(); }
};

// BRINDOR_SEED repeats a run and BRINDOR_QUESTIONS makes it longer.
TEST_F(RandomPlay, NothingThatAUserDoesBringsTheGameOutOfOrder)
{
    const std::uint64_t seed = wanted("BRINDOR_SEED", std::random_device()());
    std::cout << "seed " << seed << '\n';
    constexpr double slowest = 50; // milliseconds
    tests::RandomPlayer player(seed, static_cast<int>(wanted("BRINDOR_QUESTIONS", 2000)), slowest);
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
    std::cout << player.steps() << " steps\n";
}

} // namespace brindor
