#pragma once

#include "toolkit/controls.h"

#include <cstdint>
#include <ctime>
#include <random>
#include <string>
#include <vector>

namespace brindor::tests {

// Someone who does at each moment anything that a user could do on the screen in front, drawn from a seed, and who
// looks after each step whether the game is still in order. A fault fails the test and names the last steps.
class RandomPlayer {
public:
    // Plays until `questions` were asked, then closes what is open. `slowest` is the most CPU that a step may cost,
    // in milliseconds; 0 for no limit.
    RandomPlayer(std::uint64_t seed, int questions, double slowest);

    void act(toolkit::Screen& screen); // one step on the screen in front
    bool answer();                     // of a message: Yes or No

    // The four timelines: a good one, an odd one, one without nations, and one that is cut off. Files of the current
    // directory.
    static void writetimelines();

    int questionsasked() const { return asked_; }

private:
    bool done() const { return asked_ >= questions_; }
    std::int64_t drawn(std::int64_t below);
    std::string typed();
    void dosomething(toolkit::Screen& screen);
    void use(toolkit::Control& control);
    void leave(toolkit::Screen& screen);
    void look(const toolkit::Screen& screen);
    void lookatquestion(const toolkit::Screen& screen);
    void lookatscore();
    void lookatlog();
    void require(bool condition, const std::string& what);

    std::mt19937_64 random_;
    int questions_;
    double slowest_;
    int asked_ = 0;
    std::int64_t steps_ = 0;
    std::clock_t before_ = 0; // CPU of the process when the last step began
    std::vector<std::string> last_;
    std::string seen_;       // the quiz or score screen looked at last
    std::int64_t marks_ = 0; // the sum of all used marks then
    std::string kept_;       // the Timeline as the load left it, while it is browsed
    int worth_ = 0;          // points of the question in front
    int right_ = 0;
    int possible_ = 0;
    std::int64_t logged_ = 0; // bytes of the log that were looked at
    int askedbefore_ = 0;     // questions that the log was looked at for
};

// BRINDOR_SEED, which repeats a run, else a fresh one; printed. BRINDOR_QUESTIONS, else as many as named.
std::uint64_t seedwanted();
int questionswanted(int otherwise);

} // namespace brindor::tests
