#pragma once

#include "toolkit/controls.h"

#include <string>

namespace brindor {

// The score screen after every answered question. The quiz screen writes `text1` and `label1`, calls scoreCaption
// after the score has changed, and shows it.
struct Showscor : toolkit::Screen {
    Showscor();

    void scoreCaption(); // writes the score line of the player in turn; the screen is loaded before

    toolkit::Frame frame1;
    toolkit::Label label1;  // the results heading
    toolkit::TextBox text1; // the result of the question
    toolkit::Button command1;
    toolkit::Label label2; // the score line
};

// The end of every answered question: writes the heading (`heading` and the type's name) and the score line, shows
// the score screen, and closes the quiz screen when that has closed.
void showresult(Showscor& showscor, const std::string& heading, toolkit::Screen& quizscreen);

} // namespace brindor
