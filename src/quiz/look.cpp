#include "quiz/look.h"

#include <utility>

namespace brindor {

void dress(toolkit::Control& control, std::string text, toolkit::Colour back, const toolkit::Font& font,
           const toolkit::Place& place)
{
    control.text = std::move(text);
    control.back = back;
    control.font = font;
    control.place = place;
}

} // namespace brindor
