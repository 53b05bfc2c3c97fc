#pragma once

#include "toolkit/controls.h"

#include <array>
#include <cstdint>

namespace brindor {

// One matching question of type qtype: five coloured bars with the names of five items, five descriptions in
// shuffled order.
struct Qmatch : toolkit::Screen {
    Qmatch();

    toolkit::Frame frame1;
    toolkit::Label label1;                // the question line
    std::array<toolkit::Button, 5> btn1;  // bar b carries the name of chosen(b)
    std::array<toolkit::Label, 5> label2; // the descriptions; a position p means label2(p)
    toolkit::Button command1;             // Done
    toolkit::Button command2;             // Skip
    toolkit::Button cmdhelp;

    std::array<std::int16_t, 6> owner{}; // the bar to which the description at position p belongs
    std::array<int, 6> placed{};         // the bar last dropped on position p, -1 for none; never cleared
    int curbar = 0;                      // the bar last pressed or clicked

private:
    void open();
    void shuffle();
    void pickup(int bar);
    void drop(std::size_t p);
    void judge();
};

// The font size of a bar with a text of `length` characters, in points.
double barfontsize(std::size_t length);

// Asks one question and returns when it is over.
void playqmatch();

} // namespace brindor
