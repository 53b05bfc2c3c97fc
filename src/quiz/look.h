#pragma once

#include "toolkit/controls.h"

#include <string>

namespace brindor {

// Gives a control, before its screen is loaded, what it starts with. The letters are black.
void dress(toolkit::Control& control, std::string text, toolkit::Colour back, const toolkit::Font& font,
           const toolkit::Place& place);

} // namespace brindor
