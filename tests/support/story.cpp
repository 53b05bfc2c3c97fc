#include "support/story.h"

#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <stdexcept>

namespace brindor::tests {

using namespace toolkit;

namespace {

bool click(Control& control)
{
    switch (control.kind) {
    case Kind::button:
        return userclick(static_cast<Button&>(control));
    case Kind::optionbutton:
        return userclick(static_cast<OptionButton&>(control));
    case Kind::picture:
        return userclick(static_cast<Picture&>(control));
    case Kind::label:
        return userclick(static_cast<Label&>(control));
    default:
        return userfocus(control);
    }
}

bool type(Control& control, const std::string& text)
{
    return control.kind == Kind::combo ? usertype(static_cast<Combo&>(control), text)
                                       : usertype(static_cast<TextBox&>(control), text);
}

bool pick(Control& control, std::int16_t line)
{
    return control.kind == Kind::combo ? userpick(static_cast<Combo&>(control), line)
                                       : userpick(static_cast<List&>(control), line);
}

bool dostep(Screen& screen, const std::string& step)
{
    if (step == "esc" || step == "return") {
        return step == "esc" ? userescape(screen) : userreturn(screen);
    }
    const std::size_t end = std::min(step.find_first_of("=#+-"), step.size());
    const auto named = std::find_if(screen.controls.begin(), screen.controls.end(),
                                    [&](const Control* control) { return control->name == step.substr(0, end); });
    if (named == screen.controls.end()) {
        throw std::out_of_range(screen.name + " cannot " + step);
    }
    if (end == step.size()) {
        return click(**named);
    }
    const std::string what = step.substr(end + 1);
    switch (step[end]) {
    case '=':
        return type(**named, what);
    case '#':
        return pick(**named, index16(leadingnumber(what)));
    default:
        return userstep(static_cast<Spin&>(**named), step[end] == '+' ? 1 : -1);
    }
}

} // namespace

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
