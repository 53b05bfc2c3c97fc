#pragma once

#include "timeline/timeline.h"
#include "toolkit/controls.h"

#include <array>
#include <cstdint>
#include <functional>

namespace brindor {

// The editor chooser. Opening it, and each click on a period, loads the period's timeline afresh.
struct Bdqedit : toolkit::Screen {
    explicit Bdqedit(std::function<void()> showstatistics);

    toolkit::Frame frame1;
    std::array<toolkit::OptionButton, lastperiod + 1> option1; // the index is the period
    toolkit::Button cmdpeople;
    toolkit::Button cmdevents;
    toolkit::Button command2; // Stats
    toolkit::Button command1; // OK

private:
    void open();
    void choose(std::int16_t period);
};

// `showstatistics` shows the statistics of the Timeline. Returns when the screen has closed.
void showchooser(const std::function<void()>& showstatistics);

} // namespace brindor
