#pragma once

#include "base/program.h"
#include "toolkit/controls.h"
#include "toolkit/host.h"

#include <cstdint>
#include <string>
#include <string_view>

// What the program does with screens and controls. All events that this raises, and their order, are settled here.
namespace brindor::toolkit {

// ---- putting a screen together; before its load
// A control joins its screen. Tab goes through the controls in the order of these calls. A frame must have joined
// before it takes controls.
void add(Screen& screen, Control& control, std::string name);
void add(Frame& container, Control& control, std::string name);
std::string indexed(std::string_view name, std::int64_t index); // "choice", 2 gives "choice(2)"

// ---- controls
void settext(Control& control, std::string text); // raises `change` of a text box whose text changes
void settooltip(Control& control, std::string tooltip);
void select(OptionButton& option);          // raises `click` unless it was selected
void clearselection(OptionButton& option);  // raises nothing
void additem(List& list, std::string line); // a line that is not selected
void additem(Combo& combo, std::string line);
void clearlist(List& list);
void clearlist(Combo& combo);                                  // also empties its text
void selectline(List& list, std::int16_t line, bool selected); // raises nothing; a line outside the list is ignored
void place(Control& control, const Place& place);
void moveleft(Control& control, double left);
void movetop(Control& control, double top);
void resizeto(Control& control, double width, double height);
void show(Control& control);
void hide(Control& control);
void disable(Control& control); // for good; also takes the focus off it, with no event
void setfontsize(Control& control, double points);
void setpicture(Picture& control, PictureRef picture);
// Makes a line the one last picked; raises nothing and leaves the text. Of a line outside the list a host shows none.
void showline(Combo& combo, std::int16_t line);
void startdrag(Button& bar);           // picks the bar up; a bar picked up before is put down
void enddrag(Button& bar);             // nothing where this bar is not the one picked up
const Label* rowof(const Button& bar); // the row that a bar stands on since it was dropped there; none elsewhere

// ---- screens
void load(Screen& screen);        // the first touch of a screen runs its load; later calls do nothing
void showmodal(Screen& screen);   // loads it, shows it on top and returns when it has closed
void closescreen(Screen& screen); // raises `unload`, once; nothing on a screen that is not open
void setcaption(Screen& screen, std::string caption);
void setbackdrop(Screen& screen, PictureRef picture);
void setwindowstate(Screen& screen, std::int16_t state);    // raises `resize` on a shown screen where it changes
void resizeto(Screen& screen, double width, double height); // outer size; the same
void moveto(Screen& screen, double left, double top);
void movetomiddle(Screen& screen); // of the display; a larger screen gets a negative left or top
// Gives a screen, before it is shown, the outer size that its contents and a margin need.
void fitcontents(Screen& screen, double margin);

// ---- the rest
void messagebox(std::string text, std::string_view title = applicationtitle);
void announce(std::string text); // a message in large letters
bool askyesno(std::string text, std::string_view title);
Size displaysize(); // what windows may take of the display
Size framesize();   // what a window's frame and title bar add to its inside; 0 while not known
LoadedPicture loadpicture(const std::string& file);
void startviewer(const std::string& file);
bool quitting();
Screen* topscreen(); // the one that a person can use; none while nothing or a message is shown

} // namespace brindor::toolkit
