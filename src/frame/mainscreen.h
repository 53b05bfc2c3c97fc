#pragma once

#include "toolkit/controls.h"

#include <string>

namespace brindor {

// The program's first and last screen. Its load is the start-up; closing it writes the settings.
struct MainScreen : toolkit::Screen {
    // `programfolder` becomes the current directory, to which all file names of the program are relative.
    explicit MainScreen(std::string programfolder);

    toolkit::Label label1; // title
    toolkit::Label label2; // version
    toolkit::Label label3; // credits, hidden until About
    toolkit::Label label4;
    toolkit::Button command1; // Play
    toolkit::Button cmdsetup;
    toolkit::Button command3; // About
    toolkit::Button cmdcatalog;
    toolkit::Button cmdquit;

private:
    void start();
    void loadbackdrop();
    void arrange();

    std::string programfolder_;
};

} // namespace brindor
