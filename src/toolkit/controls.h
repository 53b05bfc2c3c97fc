#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

// Screens and controls as plain records. A record is the truth; a window only shows it. Logic reads the fields
// freely and changes them through toolkit/operations.h alone; what a person does comes in through toolkit/user.h.
// All lengths are twips (1/1440 of an inch, 15 to a logical pixel).
namespace brindor::toolkit {

struct Screen;
struct Frame;

struct Colour {
    std::uint8_t red = 255;
    std::uint8_t green = 255;
    std::uint8_t blue = 255;

    friend bool operator==(const Colour&, const Colour&) = default;
};

// A typeface by what it is for; toolkit/faces.h names its families.
enum class Face : std::uint8_t { plain, heading, reading };

struct Font {
    Face face = Face::plain;
    double points = 12;
    bool bold = false;

    friend bool operator==(const Font&, const Font&) = default;
};

// Of a control: counted from its container's top left corner.
struct Place {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    friend bool operator==(const Place&, const Place&) = default;
};

// A loaded picture. What `pixels` points to is the host's own affair.
struct PictureData {
    std::shared_ptr<const void> pixels;
    int width = 0; // of the file's picture, in pixels
    int height = 0;
};
using PictureRef = std::shared_ptr<const PictureData>;

enum class Kind { label, button, optionbutton, textbox, list, combo, frame, picture, spin };

struct Control {
    explicit Control(Kind kindofcontrol) : kind(kindofcontrol) {}
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const Kind kind;
    std::string name; // as in code, "choice(2)"
    std::string text;
    std::string tooltip;
    std::string says; // accessible name where the text does not tell, as for a field beside its caption
    Place place;
    Colour back;
    Colour fore{0, 0, 0};
    Font font;
    bool visible = true;
    bool enabled = true;
    bool opaque = true;         // false lets the backdrop of the screen through
    Screen* screen = nullptr;   // set by add
    Frame* container = nullptr; // set by add; none for a control that lies on the screen itself

protected:
    ~Control() = default;
};

enum class Align { left, centre, right };

struct Label : Control {
    Label() : Control(Kind::label) {}
    Align align = Align::left;
    Control* names = nullptr;   // the field beside it that it names
    bool outlined = false;      // a thin darker edge, as round a row that something is dropped on
    double textwidth = 0;       // the text wraps within this width; 0 for the whole label
    std::function<void()> drop; // a dragged bar was dropped here; a label with this event is a drop target
};

struct Button : Control {
    Button() : Control(Kind::button) {}
    bool bar = false;            // a coloured bar that can be picked up and dragged
    char accesskey = 0;          // the letter that Alt presses it with, 0 for none
    std::function<void()> press; // a bar only: the mouse went down on it
    std::function<void()> click;
};

// Option buttons in one container (or, without one, on one screen) exclude each other.
struct OptionButton : Control {
    OptionButton() : Control(Kind::optionbutton) {}
    bool selected = false;
    char accesskey = 0;
    std::function<void()> press; // any mouse button went down on it
    std::function<void()> click; // it became the selected one, or a person clicked it
};

struct TextBox : Control {
    TextBox() : Control(Kind::textbox) {}
    bool multiline = false;
    bool readonly = false;
    std::function<void()> change; // the text has changed, by a person or by the program
    std::function<void()> leave;  // it lost the focus
};

struct List : Control {
    List() : Control(Kind::list) {}
    std::vector<std::string> lines;
    std::vector<bool> selected; // one flag a line; shown in colour
    int columns = 1;            // the lines stand in
    bool multiselect = false;   // a click toggles a line and nothing else
    bool pushesup = false;      // a click pushes a line up: the lines fill the list, and those that can go up show it
    std::function<void(std::int16_t line)> pick; // a person clicked this line
};

// An editable drop-down list; `text` is what stands in its field.
struct Combo : Control {
    Combo() : Control(Kind::combo) {}
    std::vector<std::string> lines;
    std::int16_t position = -1; // line last picked, -1 for none
    std::function<void(std::int16_t line)> pick;
};

// A container. `text` is its caption; without a border no caption shows.
struct Frame : Control {
    Frame() : Control(Kind::frame) {}
    bool border = false;
};

// A picture stretched to the control's own size.
struct Picture : Control {
    Picture() : Control(Kind::picture) {}
    PictureRef picture;
    std::function<void()> click;
};

// Steps the number in the text box that it is bound to by 1, within low and high.
struct Spin : Control {
    Spin() : Control(Kind::spin) {}
    TextBox* buddy = nullptr;
    std::int16_t low = 0;
    std::int16_t high = 10;
};

enum WindowState : std::int16_t { normal = 0, minimised = 1, maximised = 2 };

struct Screen {
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    std::string name;
    std::string caption;
    Colour back;
    PictureRef backdrop; // behind the controls, whole and in its own shape, in the middle of the screen
    std::int16_t windowstate = normal;
    double left = 0; // outer position and size, with frame and title bar
    double top = 0;
    double width = 0;
    double height = 0;
    bool escapecloses = false;       // Escape is the close control of the title bar
    bool scrolls = true;             // what does not fit is reached by scrolling; else it is cut or fitted
    Button* defaultbutton = nullptr; // Return presses it

    std::function<void()> load;   // once, at the first touch
    std::function<void()> resize; // at the first display and after each change of size or state
    std::function<void()> unload; // once, when the screen closes

    // Written by the toolkit alone.
    std::vector<Control*> controls; // in the order of Tab
    Control* focus = nullptr;
    Button* dragged = nullptr; // the bar that is picked up
    bool placed = false;       // it was moved to a place; one that was not opens in the middle of the display
    bool loaded = false;
    bool shown = false;
    bool closed = false;

protected:
    ~Screen() = default;
};

} // namespace brindor::toolkit
