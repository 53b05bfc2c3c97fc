#pragma once

#include "toolkit/controls.h"

#include <cstdint>

namespace brindor {

// One sorting question of type qtype. The list shows `chosen` in its order, and a click on a line reorders `chosen`
// itself.
struct Qsort : toolkit::Screen {
    Qsort();

    toolkit::Frame frame1;
    toolkit::Label label1; // the question line
    toolkit::List list1;
    toolkit::Label label2;    // the hint
    toolkit::Button command1; // Done
    toolkit::Button command2; // Help

    std::int16_t lastline = 0; // the last line of the list: 4 from the end of the load on

private:
    void open();
    void updatelist();
    void push(std::int16_t k);
    void judge();
};

// Asks one question and returns when it is over.
void playqsort();

} // namespace brindor
