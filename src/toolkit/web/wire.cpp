#include "toolkit/web/wire.h"

#include "base/text.h"
#include "toolkit/operations.h"
#include "toolkit/web/page.h"

#include <algorithm>
#include <cmath>

namespace brindor::toolkit::web {

namespace {

template <class Value>
std::string array(const std::vector<Value>& values)
{
    std::string result = "[";
    for (const Value& value : values) {
        result += (result.size() > 1 ? "," : "") + jsontext(value);
    }
    return result + ']';
}

// A point is 1/72 of an inch and a pixel 1/96.
int fontpixels(const Font& font)
{
    return std::max(1, static_cast<int>(std::lround(font.points * 96 / 72)));
}

std::string letter(char accesskey)
{
    return accesskey == 0 ? std::string() : std::string(1, accesskey);
}

// The page's name for a picture, 0 for none.
int idof(const PictureRef& picture)
{
    return picture == nullptr ? 0 : *static_cast<const int*>(picture->pixels.get());
}

// What the kind adds; its name goes by the fields.
std::string kindtext(const Label& label)
{
    constexpr const char* aligns[] = {"left", "center", "right"};
    return object("kind", "label", "align", aligns[static_cast<std::size_t>(label.align)], "names",
                  indexof(*label.screen, label.names), "outlined", label.outlined, "drops", isdroptarget(label),
                  "textwidth", pixels(label.textwidth));
}

std::string kindtext(const Button& button)
{
    const Screen& screen = *button.screen;
    return object("kind", button.bar ? "bar" : "button", "key", letter(button.accesskey), "default",
                  screen.defaultbutton == &button, "held", screen.dragged == &button, "row",
                  button.bar ? indexof(screen, rowof(button)) : -1);
}

std::string kindtext(const OptionButton& option)
{
    return object("kind", "option", "key", letter(option.accesskey), "checked", option.selected, "presses",
                  option.press != nullptr);
}

std::string kindtext(const List& list)
{
    return object("kind", "list", "marked", std::vector<int>(list.selected.begin(), list.selected.end()), "columns",
                  list.columns, "multiselect", list.multiselect, "pushesup", list.pushesup);
}

std::string kindtext(const Control& control)
{
    switch (control.kind) {
    case Kind::label:
        return kindtext(static_cast<const Label&>(control));
    case Kind::button:
        return kindtext(static_cast<const Button&>(control));
    case Kind::optionbutton:
        return kindtext(static_cast<const OptionButton&>(control));
    case Kind::textbox: {
        const auto& box = static_cast<const TextBox&>(control);
        return object("kind", "textbox", "multiline", box.multiline, "readonly", box.readonly);
    }
    case Kind::list:
        return kindtext(static_cast<const List&>(control));
    case Kind::combo:
        return object("kind", "combo", "position", static_cast<const Combo&>(control).position);
    case Kind::frame:
        return object("kind", "frame", "border", static_cast<const Frame&>(control).border);
    case Kind::picture: {
        const auto& picture = static_cast<const Picture&>(control);
        return object("kind", "picture", "picture", idof(picture.picture), "clicks", picture.click != nullptr);
    }
    case Kind::spin:
        return object("kind", "spin", "buddy", indexof(*control.screen, static_cast<const Spin&>(control).buddy));
    }
    return object("kind", "");
}

} // namespace

int pixels(double twips)
{
    constexpr double limit = 30000;
    const double exact = twips / twipsinpixel;
    return std::isnan(exact) ? 0 : static_cast<int>(std::lround(std::clamp(exact, -limit, limit)));
}

PixelRect pixelsof(const Place& place)
{
    const int left = pixels(place.left);
    const int top = pixels(place.top);
    return {left, top, std::max(0, pixels(place.left + place.width) - left),
            std::max(0, pixels(place.top + place.height) - top)};
}

std::string jsontext(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (const char c : toutf8(text)) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20) {
            result += "\\u00";
            result += digits[byte >> 4];
            result += digits[byte & 15];
        } else {
            result += c == '"' || c == '\\' ? "\\" : "";
            result += c;
        }
    }
    return result + '"';
}

std::string jsontext(const char* text)
{
    return jsontext(std::string_view(text));
}

std::string jsontext(int number)
{
    return std::to_string(number);
}

std::string jsontext(bool flag)
{
    return flag ? "true" : "false";
}

std::string jsontext(Colour colour)
{
    return "\"rgb(" + std::to_string(colour.red) + ',' + std::to_string(colour.green) + ',' +
           std::to_string(colour.blue) + ")\"";
}

std::string jsontext(const std::vector<std::string>& texts)
{
    return array(texts);
}

std::string jsontext(const std::vector<int>& numbers)
{
    return array(numbers);
}

std::string joined(std::string object, std::string_view other)
{
    object.back() = ',';
    return object.append(other.substr(1));
}

int indexof(const Screen& screen, const Control* control)
{
    const auto found = std::find(screen.controls.begin(), screen.controls.end(), control);
    return found == screen.controls.end() ? -1 : static_cast<int>(found - screen.controls.begin());
}

const std::vector<std::string>* linesof(const Control& control)
{
    if (control.kind == Kind::list) {
        return &static_cast<const List&>(control).lines;
    }
    return control.kind == Kind::combo ? &static_cast<const Combo&>(control).lines : nullptr;
}

std::string screentext(int window, const Screen& screen)
{
    return object("window", window, "name", screen.name, "caption", screen.caption, "back", screen.back, "backdrop",
                  idof(screen.backdrop), "width", pixels(screen.width), "height", pixels(screen.height), "state",
                  int{screen.windowstate}, "scrolls", screen.scrolls);
}

std::string controltext(int window, const Control& control)
{
    const Screen& screen = *control.screen;
    const std::string all = object(
        "window", window, "control", indexof(screen, &control), "name", control.name, "in",
        indexof(screen, control.container), "text", control.text, "tip", control.tooltip, "says", control.says, "back",
        control.back, "fore", control.fore, "face", static_cast<int>(control.font.face), "size",
        fontpixels(control.font), "bold", control.font.bold, "visible", control.visible, "enabled", control.enabled,
        "opaque", control.opaque, "wide", pixelsof(control.place).width, "surface", issurface(control));
    return joined(all, kindtext(control));
}

} // namespace brindor::toolkit::web
