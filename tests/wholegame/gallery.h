#pragma once

#include "toolkit/windows.h"

namespace brindor::tests {

// Every screen of the game and its messages, with the Timeline that is loaded. The questions are drawn with a fixed
// seed, so that the same Timeline gives the same pictures.
struct Exhibit {
    std::string name;
    std::function<void()> open;
    std::vector<Step> way; // to the window that is looked at
    std::string window;
};
std::vector<Exhibit> gallery();

// Shows the exhibit and looks at its window.
void look(const Exhibit& exhibit, const std::function<void(QWidget& window)>& with);

} // namespace brindor::tests
