#pragma once

#include "quiz/showscor.h"
#include "toolkit/controls.h"

#include <string>

namespace brindor {

// The end of every answered question: writes the heading (`heading` and the type's name) and the score line, shows
// the score screen, and closes the quiz screen when that has closed.
void showresult(Showscor& showscor, const std::string& heading, toolkit::Screen& quizscreen);

} // namespace brindor
