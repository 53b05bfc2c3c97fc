#include "toolkit/web/wire.h"

#include "base/text.h"
#include "toolkit/layout.h"
#include "toolkit/operations.h"
#include "toolkit/web/page.h"

#include <algorithm>
#include <cmath>

namespace brindor::toolkit::web {

namespace {

std::string quoted(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string result = "\"";
    for (const char c : toutf8(bytes)) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20) {
            result += "\\u00";
            result += digits[byte >> 4];
            result += digits[byte & 15];
        } else {
            if (c == '"' || c == '\\') {
                result += '\\';
            }
            result += c;
        }
    }
    return result + '"';
}

template <class Values, class Text>
std::string array(const Values& values, const Text& textof)
{
    std::string result = "[";
    for (const auto& value : values) {
        result += (result.size() > 1 ? "," : "") + textof(value);
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

const char* kindname(const Control& control)
{
    constexpr const char* names[] = {"label", "button", "option", "textbox", "list",
                                     "combo", "frame",  "picture", "spin"};
    return isbar(control) ? "bar" : names[static_cast<std::size_t>(control.kind)];
}

// What the kind adds.
void addkind(Json& json, const Control& control)
{
    const Screen& screen = *control.screen;
    switch (control.kind) {
    case Kind::label: {
        const auto& label = static_cast<const Label&>(control);
        constexpr const char* aligns[] = {"left", "center", "right"};
        json.add("align", aligns[static_cast<std::size_t>(label.align)])
            .add("names", indexof(screen, label.names))
            .add("outlined", label.outlined)
            .add("drops", isdroptarget(control))
            .add("textwidth", static_cast<int>(std::lround(label.textwidth / twipsinpixel)));
        break;
    }
    case Kind::button: {
        const auto& button = static_cast<const Button&>(control);
        json.add("key", letter(button.accesskey)).add("default", screen.defaultbutton == &button);
        if (button.bar) {
            json.add("held", screen.dragged == &button).add("row", indexof(screen, rowof(button)));
        }
        break;
    }
    case Kind::optionbutton: {
        const auto& option = static_cast<const OptionButton&>(control);
        json.add("key", letter(option.accesskey))
            .add("checked", option.selected)
            .add("presses", option.press != nullptr);
        break;
    }
    case Kind::textbox: {
        const auto& box = static_cast<const TextBox&>(control);
        json.add("multiline", box.multiline).add("readonly", box.readonly);
        break;
    }
    case Kind::list: {
        const auto& list = static_cast<const List&>(control);
        json.add("marked", std::vector<int>(list.selected.begin(), list.selected.end()))
            .add("columns", list.columns)
            .add("multiselect", list.multiselect)
            .add("pushesup", list.pushesup);
        break;
    }
    case Kind::combo:
        json.add("position", static_cast<const Combo&>(control).position);
        break;
    case Kind::frame:
        json.add("border", static_cast<const Frame&>(control).border);
        break;
    case Kind::picture: {
        const auto& picture = static_cast<const Picture&>(control);
        json.add("picture", idof(picture.picture)).add("clicks", picture.click != nullptr);
        break;
    }
    case Kind::spin:
        json.add("buddy", indexof(screen, static_cast<const Spin&>(control).buddy));
        break;
    }
}

} // namespace

void Json::key(std::string_view name)
{
    fields_ += fields_.size() > 1 ? ",\"" : "\"";
    fields_ += name;
    fields_ += "\":";
}

Json& Json::add(std::string_view name, std::string_view text)
{
    key(name);
    fields_ += quoted(text);
    return *this;
}

Json& Json::add(std::string_view name, int number)
{
    key(name);
    fields_ += std::to_string(number);
    return *this;
}

Json& Json::add(std::string_view name, bool flag)
{
    key(name);
    fields_ += flag ? "true" : "false";
    return *this;
}

Json& Json::add(std::string_view name, Colour colour)
{
    return add(name, "rgb(" + std::to_string(colour.red) + ',' + std::to_string(colour.green) + ',' +
                         std::to_string(colour.blue) + ')');
}

Json& Json::add(std::string_view name, const std::vector<std::string>& texts)
{
    key(name);
    fields_ += array(texts, [](const std::string& text) { return quoted(text); });
    return *this;
}

Json& Json::add(std::string_view name, const std::vector<int>& numbers)
{
    key(name);
    fields_ += array(numbers, [](int number) { return std::to_string(number); });
    return *this;
}

int idof(const PictureRef& picture)
{
    return picture == nullptr ? 0 : *static_cast<const int*>(picture->pixels.get());
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
    return Json()
        .add("window", window)
        .add("name", screen.name)
        .add("caption", screen.caption)
        .add("back", screen.back)
        .add("backdrop", idof(screen.backdrop))
        .add("width", static_cast<int>(std::lround(screen.width / twipsinpixel)))
        .add("height", static_cast<int>(std::lround(screen.height / twipsinpixel)))
        .add("state", screen.windowstate)
        .add("scrolls", screen.scrolls)
        .text();
}

Json controltext(int window, int index, const Control& control)
{
    Json json;
    json.add("window", window)
        .add("control", index)
        .add("kind", kindname(control))
        .add("name", control.name)
        .add("in", indexof(*control.screen, control.container))
        .add("text", control.text)
        .add("tip", control.tooltip)
        .add("says", control.says)
        .add("back", control.back)
        .add("fore", control.fore)
        .add("face", static_cast<int>(control.font.face))
        .add("size", fontpixels(control.font))
        .add("bold", control.font.bold)
        .add("visible", control.visible)
        .add("enabled", control.enabled)
        .add("opaque", control.opaque)
        .add("surface", issurface(control));
    addkind(json, control);
    return json;
}

} // namespace brindor::toolkit::web
