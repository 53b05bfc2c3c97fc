#include "toolkit/web/dispatch.h"

#include "base/numbers.h"
#include "base/text.h"
#include "toolkit/user.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace brindor::toolkit::web {

namespace {

template <class Wanted>
Wanted& as(Control& control)
{
    return static_cast<Wanted&>(control);
}

const struct {
    Kind kind;
    std::string_view act;
    bool (*tell)(Control& control, const Event& event);
} acts[] = {
    {Kind::button, "press", [](Control& c, const Event&) { return userpress(as<Button>(c)); }},
    {Kind::button, "click", [](Control& c, const Event&) { return userclick(as<Button>(c)); }},
    {Kind::optionbutton, "press", [](Control& c, const Event&) { return userpress(as<OptionButton>(c)); }},
    {Kind::optionbutton, "click", [](Control& c, const Event&) { return userclick(as<OptionButton>(c)); }},
    {Kind::label, "click", [](Control& c, const Event&) { return userclick(as<Label>(c)); }},
    {Kind::label, "drop", [](Control& c, const Event&) { return userdrop(as<Label>(c)); }},
    {Kind::picture, "click", [](Control& c, const Event&) { return userclick(as<Picture>(c)); }},
    {Kind::list, "pick", [](Control& c, const Event& e) { return userpick(as<List>(c), index16(e.number)); }},
    {Kind::combo, "pick", [](Control& c, const Event& e) { return userpick(as<Combo>(c), index16(e.number)); }},
    {Kind::combo, "type", [](Control& c, const Event& e) { return usertype(as<Combo>(c), e.text); }},
    {Kind::textbox, "type", [](Control& c, const Event& e) { return usertype(as<TextBox>(c), e.text); }},
    {Kind::textbox, "step", [](Control& c, const Event& e) { return userstep(as<TextBox>(c), e.number); }},
    {Kind::spin, "step", [](Control& c, const Event& e) { return userstep(as<Spin>(c), e.number); }},
};

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
    if (control != nullptr && (event.act == "focus" || event.act == "return")) {
        // Return also tells where the focus is: the first one of a window is the page's own and was not told.
        const bool taken = userfocus(*control);
        if (event.act == "focus") {
            return taken;
        }
    }
    if (event.act == "return") {
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
    const auto row = std::find_if(std::begin(acts), std::end(acts), [&](const auto& one) {
        return control != nullptr && one.kind == control->kind && one.act == event.act;
    });
    return row != std::end(acts) && row->tell(*control, event);
}

} // namespace brindor::toolkit::web
