#include "toolkit/user.h"

#include "base/numbers.h"
#include "base/text.h"
#include "toolkit/operations.h"
#include "toolkit/stack.h"

#include <algorithm>
#include <utility>

namespace brindor::toolkit {

namespace {

void tellleave(Control* control)
{
    if (control != nullptr && control->kind == Kind::textbox) {
        raise(static_cast<TextBox*>(control)->leave);
    }
}

// Moves the focus. What a leave event does may take the control away again.
bool movefocus(Control& control)
{
    if (!reachable(control)) {
        return false;
    }
    Screen& screen = *control.screen;
    if (screen.focus == &control) {
        return true;
    }
    Control* before = std::exchange(screen.focus, &control);
    tellleave(before);
    if (!reachable(control)) {
        return false;
    }
    host().focus(control);
    return true;
}

void stepped(Spin& spin, int step)
{
    const std::int16_t number = roundtoint16(textvalue(spin.buddy->text) + step);
    settext(*spin.buddy, numbertext(std::clamp(number, spin.low, spin.high)));
}

std::string lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), lowercase);
    return text;
}

// The line that a person means with a text: the first that is the same, else the only one of those that hold it,
// whatever the case of the letters. -1 for none.
std::int16_t linemeant(const std::vector<std::string>& lines, const std::string& text)
{
    const std::string wanted = lowered(text);
    if (wanted.empty()) {
        return -1;
    }
    std::int64_t same = -1;
    std::int64_t holding = -1;
    std::int64_t count = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const auto at = static_cast<std::int64_t>(i);
        if (lines[i] == text) {
            return index16(at);
        }
        const std::string line = lowered(lines[i]);
        same = same < 0 && line == wanted ? at : same;
        if (line.find(wanted) != std::string::npos) {
            holding = at;
            ++count;
        }
    }
    return index16(same >= 0 ? same : count == 1 ? holding : -1);
}

// A refused or ended screen takes no more of a person's actions.
bool usable(const Screen& screen)
{
    return topscreen() == &screen;
}

} // namespace

bool userfocus(Control& control)
{
    return movefocus(control);
}

bool userleave(Control& control)
{
    if (!reachable(control) || control.screen->focus != &control) {
        return false;
    }
    control.screen->focus = nullptr;
    tellleave(&control);
    return true;
}

bool userpress(Button& bar)
{
    if (!bar.bar || !movefocus(bar)) {
        return false;
    }
    raise(bar.press);
    return true;
}

bool userpress(OptionButton& option)
{
    if (!movefocus(option)) {
        return false;
    }
    raise(option.press);
    return true;
}

bool userclick(Button& button)
{
    if (!movefocus(button)) {
        return false;
    }
    raise(button.click);
    return true;
}

bool userclick(OptionButton& option)
{
    if (!movefocus(option)) {
        return false;
    }
    if (option.selected) {
        raise(option.click);
    } else {
        select(option);
    }
    return true;
}

bool userclick(Picture& picture)
{
    if (!movefocus(picture)) {
        return false;
    }
    raise(picture.click);
    return true;
}

bool userclick(Label& target)
{
    if (!target.drop || !movefocus(target)) {
        return false;
    }
    return userdrop(target);
}

bool userdrop(Label& target)
{
    if (!target.drop || !reachable(target) || target.screen->dragged == nullptr) {
        return false;
    }
    raise(target.drop);
    return true;
}

bool userdropnowhere(Screen& screen)
{
    if (!usable(screen) || screen.dragged == nullptr) {
        return false;
    }
    enddrag(*screen.dragged);
    return true;
}

bool userpick(List& list, std::int16_t line)
{
    if (line < 0 || static_cast<std::size_t>(line) >= list.lines.size() || !movefocus(list)) {
        return false;
    }
    if (list.multiselect) {
        selectline(list, line, !list.selected[static_cast<std::size_t>(line)]);
    }
    raise(list.pick, line);
    return true;
}

bool userpick(Combo& combo, std::int16_t line)
{
    if (line < 0 || static_cast<std::size_t>(line) >= combo.lines.size() || !movefocus(combo)) {
        return false;
    }
    combo.position = line;
    settext(combo, combo.lines[static_cast<std::size_t>(line)]);
    raise(combo.pick, line);
    return true;
}

bool usertype(TextBox& box, std::string text)
{
    if (box.readonly || !movefocus(box)) {
        return false;
    }
    settext(box, std::move(text));
    return true;
}

bool usertype(Combo& combo, std::string text)
{
    if (!movefocus(combo)) {
        return false;
    }
    settext(combo, std::move(text));
    return true;
}

bool userstep(Spin& spin, int step)
{
    if (spin.buddy == nullptr || !reachable(*spin.buddy) || !movefocus(spin)) {
        return false;
    }
    stepped(spin, step);
    return true;
}

bool userstep(TextBox& box, int step)
{
    const auto isof = [&box](const Control* control) {
        return control->kind == Kind::spin && static_cast<const Spin*>(control)->buddy == &box;
    };
    const auto spin = std::find_if(box.screen->controls.begin(), box.screen->controls.end(), isof);
    if (spin == box.screen->controls.end() || !movefocus(box)) {
        return false;
    }
    stepped(static_cast<Spin&>(**spin), step);
    return true;
}

bool userresize(Screen& screen, double width, double height, std::int16_t state)
{
    if (screen.closed || !screen.shown ||
        (screen.width == width && screen.height == height && screen.windowstate == state)) {
        return false;
    }
    screen.width = width;
    screen.height = height;
    screen.windowstate = state;
    raise(screen.resize);
    return true;
}

bool userclose(Screen& screen)
{
    if (!usable(screen)) {
        return false;
    }
    closescreen(screen);
    return true;
}

bool userescape(Screen& screen)
{
    if (!usable(screen)) {
        return false;
    }
    if (screen.dragged != nullptr) {
        return userdropnowhere(screen);
    }
    return screen.escapecloses && userclose(screen);
}

bool userreturn(Screen& screen)
{
    if (usable(screen) && screen.focus != nullptr && screen.focus->kind == Kind::combo) {
        auto& combo = static_cast<Combo&>(*screen.focus);
        return userpick(combo, linemeant(combo.lines, combo.text));
    }
    return usable(screen) && screen.defaultbutton != nullptr && userclick(*screen.defaultbutton);
}

} // namespace brindor::toolkit
