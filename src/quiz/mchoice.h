#pragma once

#include "toolkit/controls.h"

#include <array>
#include <cstdint>

namespace brindor {

// One multiple choice question of type qtype: five choices, of which a mouse press takes one as the answer.
struct Mchoice : toolkit::Screen {
    Mchoice();

    toolkit::Frame frame1;
    toolkit::Label label1; // the question line
    std::array<toolkit::OptionButton, 5> choice;
    toolkit::Button cmdhelp;
    toolkit::Button command1; // skip

    std::int16_t rightchoice = 0; // 0 to 3: choice 4 is never the right one
    std::int16_t askeditem = 0;   // the item that the question line asks about

private:
    void open();
    void answer(std::int16_t i);
};

// Asks one question and returns when it is over.
void playmchoice();

} // namespace brindor
