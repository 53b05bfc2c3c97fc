#pragma once

#include "toolkit/controls.h"

#include <array>
#include <functional>

namespace brindor {

// The conditions of a game. The log status takes effect at once; all else when the screen closes, which also writes
// the settings. There is no cancel.
struct Setup : toolkit::Screen {
    explicit Setup(std::function<void()> showchooser);

    toolkit::Label label4;
    toolkit::TextBox nquestion;
    toolkit::Spin updown1;
    toolkit::Label label1;
    toolkit::List list1; // line i - 1 belongs to type i
    toolkit::Frame frame1;
    std::array<toolkit::OptionButton, 3> option1; // the index is the log status
    toolkit::Frame framediff;                     // never seen
    toolkit::Label label5;
    toolkit::TextBox tmindif;
    toolkit::Spin updown2;
    toolkit::Label label6;
    toolkit::TextBox tmaxdif;
    toolkit::Spin updown3;
    toolkit::Button cmdedit;
    toolkit::Button cmdok;

private:
    void putcontrols();
    void open();
    void keep();
    void limittyped();
};

// `showchooser` shows the editor chooser. Returns when the screen has closed.
void showsetup(const std::function<void()>& showchooser);

} // namespace brindor
