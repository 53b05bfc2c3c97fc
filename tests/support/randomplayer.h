#pragma once

#include "toolkit/controls.h"

#include <ctime>
#include <random>

namespace brindor::tests {

// Someone who does at each moment anything that a user could do on the screen in front, drawn from a seed, and who
// looks after each step whether the game is still in order. A fault fails the test and names the last steps.
class RandomPlayer {
public:
    // Plays until `questions` were asked, or BRINDOR_QUESTIONS, then closes what is open. `slowest` is the most CPU
    // that a step may cost, in milliseconds; 0 for no limit. The seed is BRINDOR_SEED, which repeats a run, else a
    // fresh one; it is printed.
    RandomPlayer(int questions, double slowest);

    std::function<void(toolkit::Control&)> clicks; // how a control is clicked on; through toolkit/user.h unless given

    void act(toolkit::Screen& screen); // one step on the screen in front
    bool answer();                     // of a message: Yes or No

    // The four timelines: a good one, an odd one, one without nations, and one that is cut off. Files of the current
    // directory.
    static void writetimelines();

    bool done() const { return asked_ >= questions_; }

private:
    std::int64_t drawn(std::int64_t below);
    const auto& drawnof(const auto& pieces)
    {
        return pieces[static_cast<std::size_t>(drawn(static_cast<std::int64_t>(pieces.size())))];
    }
    void use(toolkit::Control& control);
    void look(const toolkit::Screen& screen);
    void lookatquestion(const toolkit::Screen& screen, int worth);
    void lookatscore();
    void lookatlog();
    void require(bool condition, const std::string& what);

    std::mt19937_64 random_;
    int questions_;
    double slowest_;
    int asked_ = 0;
    std::int64_t steps_ = 0;
    std::clock_t before_ = 0; // CPU of the process when the last step began
    std::string last_;        // what was done last: the screen, the number of the deed, the control
    std::string seen_;        // the quiz or score screen looked at last
    std::int64_t marks_ = 0;  // the sum of all used marks then
    std::string kept_;        // the Timeline as the load left it, while it is browsed
    int worth_ = 0;           // points of the question in front
    int right_ = 0;
    int possible_ = 0;
    std::size_t logged_ = 0; // bytes of the log that were looked at
    int askedbefore_ = 0;    // questions that the log was looked at for
};

} // namespace brindor::tests
