#pragma once

#include "toolkit/controls.h"

namespace brindor {

// The figures of the loaded Timeline, as they are when the screen opens.
struct CurStats : toolkit::Screen {
    CurStats();

    toolkit::Label label1; // the timeline's file
    toolkit::Label label2; // people
    toolkit::Label label3; // events
    toolkit::Label label5; // the Catalogues
    toolkit::Label label6;
    toolkit::Label label7;
    toolkit::Label label8;
    toolkit::Label label4; // the date range
    toolkit::Button command1;

private:
    void open();
};

// Shows the figures and returns when the screen has closed.
void showstatistics();

} // namespace brindor
