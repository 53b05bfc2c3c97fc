#pragma once

#include "quiz/showscor.h"
#include "toolkit/controls.h"

#include <cstdint>
#include <string>

namespace brindor {

// What an answer does to an item's used mark.
inline constexpr std::int16_t rightmark = 4;
inline constexpr std::int16_t wrongmark = -1;

// The end of every answered question: writes the heading (`heading` and the type's name) and the score line, shows
// the score screen, and closes the quiz screen when that has closed.
void showresult(Showscor& showscor, const std::string& heading, toolkit::Screen& quizscreen);

} // namespace brindor
