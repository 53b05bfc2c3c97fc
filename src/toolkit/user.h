#pragma once

#include "toolkit/controls.h"

#include <cstdint>
#include <string>

// The one door for what a person does. Hosts and tests call these; nothing else raises a person's events. Each
// refuses what a person could not do (a control that is hidden or disabled, a screen that is not on top, a message
// in front) and then returns false with nothing changed. The field that had the focus is told that it lost it
// before anything else happens.
namespace brindor::toolkit {

bool userfocus(Control& control);     // the focus came to it, by Tab or a click
bool userleave(Control& control);     // the focus left it for no other control of the screen
bool userpress(Button& bar);          // the mouse went down on a bar
bool userpress(OptionButton& option); // any mouse button went down on it
bool userclick(Button& button);
bool userclick(OptionButton& option);
bool userclick(Picture& picture);
bool userclick(Label& target);                // with a bar picked up: drops it here; else nothing, and false
bool userdrop(Label& target);                 // the drag ended here
bool userdropnowhere(Screen& screen);         // the drag ended on nothing that takes a bar: the bar is put down
bool userpick(List& list, std::int16_t line); // a click on a line; Space or Return on the current one
bool userpick(Combo& combo, std::int16_t line);
bool usertype(TextBox& box, std::string text); // the text as it stands after the typing
bool usertype(Combo& combo, std::string text);
bool userstep(Spin& spin, int step);   // +1 or -1
bool userstep(TextBox& box, int step); // by a key in the field of a spin, which keeps the focus
bool userresize(Screen& screen, double width, double height, std::int16_t state); // outer, twips
bool userclose(Screen& screen);                                                   // the close control of the title bar
bool userescape(Screen& screen); // puts a picked-up bar down, else closes a screen that Escape closes
// Return. In a drop-down list it picks the line that the text is, or the only one that holds the text, and nothing
// more; elsewhere it presses the default button.
bool userreturn(Screen& screen);

} // namespace brindor::toolkit
