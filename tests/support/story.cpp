#include "support/story.h"

#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>

namespace brindor::tests {

using namespace toolkit;

namespace {

// Does the act where the control is of one of these kinds.
template <class... Kinds>
bool ifoneof(Control& control, const auto& act)
{
    return ((control.kind == Kinds().kind && act(static_cast<Kinds&>(control))) || ...);
}

bool dostep(Screen& screen, const std::string& step)
{
    if (step == "esc" || step == "return") {
        return step == "esc" ? userescape(screen) : userreturn(screen);
    }
    const std::size_t end = std::min(step.find_first_of("=#+-"), step.size());
    Control& control = controlof(screen, step.substr(0, end));
    const std::string what = step.substr(std::min(end + 1, step.size()));
    switch (step[end]) {
    case '=':
        return type(control, what);
    case '#':
        return pick(control, index16(leadingnumber(what)));
    case '+':
    case '-':
        return userstep(static_cast<Spin&>(control), step[end] == '+' ? 1 : -1);
    default:
        return click(control);
    }
}

} // namespace

bool click(Control& control)
{
    return ifoneof<Button, OptionButton, Picture, Label>(control, [](auto& of) { return userclick(of); }) ||
           ifoneof<TextBox, List, Combo, Spin, Frame>(control, userfocus);
}

bool press(Control& control)
{
    return ifoneof<Button, OptionButton>(control, [](auto& of) { return userpress(of); });
}

bool type(Control& control, const std::string& text)
{
    return ifoneof<TextBox, Combo>(control, [&](auto& of) { return usertype(of, text); });
}

bool pick(Control& control, std::int16_t line)
{
    return ifoneof<List, Combo>(control, [&](auto& of) { return userpick(of, line); });
}

std::string said(MemoryHost& host)
{
    std::string text;
    for (const Message& message : host.messages) {
        text += (message.title == "Brindor Trivia Game" ? "" : message.title + ": ") + message.text + '\n';
    }
    host.messages.clear();
    return text;
}

std::vector<std::string> split(const std::string& text, const std::string& separator)
{
    std::vector<std::string> pieces;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(separator, at), text.size());
        pieces.push_back(text.substr(at, end - at));
        at = end + separator.size();
    }
    return pieces;
}

std::string act(MemoryHost& host, Screen& screen, const std::string& story, const std::function<std::string()>& look)
{
    std::string transcript;
    for (std::string& step : split(story, "; ")) {
        host.answers.assign(1, step.ends_with(":Y"));
        step.resize(step.size() - (step.ends_with(":Y") ? 2 : 0));
        if (step == "?") {
            transcript += look() + '\n';
        } else if (!dostep(screen, step)) {
            transcript += '!' + step + '\n';
        }
        transcript += said(host);
    }
    return transcript;
}

} // namespace brindor::tests
