#include "toolkit/web/dispatch.h"

#include "base/numbers.h"
#include "base/text.h"
#include "toolkit/user.h"

#include <string_view>

namespace brindor::toolkit::web {

namespace {

bool onbutton(const Event& event, Button& button)
{
    return event.act == "press" ? userpress(button) : event.act == "click" && userclick(button);
}

bool onoption(const Event& event, OptionButton& option)
{
    return event.act == "press" ? userpress(option) : event.act == "click" && userclick(option);
}

bool onlabel(const Event& event, Label& label)
{
    return event.act == "drop" ? userdrop(label) : event.act == "click" && userclick(label);
}

bool ontextbox(const Event& event, TextBox& box)
{
    return event.act == "step" ? userstep(box, event.number) : event.act == "type" && usertype(box, event.text);
}

bool oncombo(const Event& event, Combo& combo)
{
    return event.act == "pick" ? userpick(combo, index16(event.number))
                               : event.act == "type" && usertype(combo, event.text);
}

bool oncontrol(const Event& event, Control& control)
{
    if (event.act == "focus") {
        return userfocus(control);
    }
    switch (control.kind) {
    case Kind::label:
        return onlabel(event, static_cast<Label&>(control));
    case Kind::button:
        return onbutton(event, static_cast<Button&>(control));
    case Kind::optionbutton:
        return onoption(event, static_cast<OptionButton&>(control));
    case Kind::textbox:
        return ontextbox(event, static_cast<TextBox&>(control));
    case Kind::list:
        return event.act == "pick" && userpick(static_cast<List&>(control), index16(event.number));
    case Kind::combo:
        return oncombo(event, static_cast<Combo&>(control));
    case Kind::picture:
        return event.act == "click" && userclick(static_cast<Picture&>(control));
    case Kind::spin:
        return event.act == "step" && userstep(static_cast<Spin&>(control), event.number);
    case Kind::frame:
        break;
    }
    return false;
}

// The text has the window's width and height in pixels, the number is its state.
bool resized(const Event& event, Screen& screen)
{
    std::string_view rest = event.text;
    const std::optional<std::int64_t> width = wholenumber(takevalue(rest));
    const std::optional<std::int64_t> height = wholenumber(takevalue(rest));
    return width && height &&
           userresize(screen, static_cast<double>(*width) * twipsinpixel, static_cast<double>(*height) * twipsinpixel,
                      index16(event.number));
}

} // namespace

bool act(const Event& event, Screen& screen, Control* control)
{
    if (event.act == "return") {
        // The page may show a first focus that the program has not been told of.
        if (control != nullptr) {
            userfocus(*control);
        }
        return userreturn(screen);
    }
    if (event.act == "escape") {
        return userescape(screen);
    }
    if (event.act == "close") {
        return userclose(screen);
    }
    if (event.act == "dropnowhere") {
        return userdropnowhere(screen);
    }
    if (event.act == "resize") {
        return resized(event, screen);
    }
    return control != nullptr && oncontrol(event, *control);
}

} // namespace brindor::toolkit::web
