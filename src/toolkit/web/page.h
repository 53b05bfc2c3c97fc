#pragma once

#include "toolkit/host.h"

#include <cstdint>
#include <optional>
#include <string>

// What the page does for the host: the other half is page/bridge.js, which the page hands to the program when it
// starts it. nextevent and fetchpicture let the page act until they return; the others return at once.
namespace brindor::toolkit::web {

inline constexpr double twipsinpixel = 15; // of the page's windows, which it may show larger or smaller as a whole

// What a person did, in the order in which it was done.
struct Event {
    int window = 0;   // serial number of the window, 0 for what belongs to none
    std::string act;  // as in "click"
    int control = -1; // where it stands in Screen::controls, -1 for none
    int number = 0;   // a line, a step, an answer
    std::string text;
};

Event nextevent();                  // waits for it
void post(const std::string& json); // a change that the page is to show

// The height in pixels that a control's text needs at a width.
int measure(int window, int control, int width);

Size pagesize(); // what windows may take, in pixels at zoom 1

// Waits until the picture has come. `id` is above 0 and names the picture for the page, which keeps it until
// forgetpicture.
struct FetchedPicture {
    int id = 0;
    int width = 0;
    int height = 0;
    int error = 0; // above 0 where there is none
};
FetchedPicture fetchpicture(const std::string& file);
void forgetpicture(int id);

std::optional<std::uint64_t> seedofaddress(); // "?seed=5"

void tellended(); // the program has come to its end

} // namespace brindor::toolkit::web
