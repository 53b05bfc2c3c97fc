#pragma once

#include "toolkit/controls.h"

#include <string>

namespace brindor {

// Shows the picture viewimagename as large as its window, in the window's shape. A picture that cannot be loaded is
// told, and the screen closes without having been seen.
struct ImgDisp : toolkit::Screen {
    ImgDisp();

    toolkit::Picture image1;

private:
    void open();
    void fit();
};

extern std::string viewimagename; // written by viewimage

// Shows the picture of a file and returns when its screen has closed.
void viewimage(const std::string& filename);

// Loads the picture of a file into a control. A failure is told, with its number, and leaves the control as it was;
// false then.
bool loadinto(toolkit::Picture& control, const std::string& filename);

} // namespace brindor
