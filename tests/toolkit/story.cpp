#include "story.h"

#include "toolkit/user.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>

namespace brindor::tests {

using namespace toolkit;

namespace {

std::string said(const Control& control)
{
    switch (control.kind) {
    case Kind::optionbutton:
        return static_cast<const OptionButton&>(control).selected ? " on" : " off";
    case Kind::list: {
        std::string flags = " ";
        for (const bool selected : static_cast<const List&>(control).selected) {
            flags += selected ? '1' : '0';
        }
        return flags;
    }
    case Kind::combo:
        return '=' + control.text + " at " + std::to_string(static_cast<const Combo&>(control).position);
    default:
        return '=' + control.text;
    }
}

// What is the same with every host: what the program does, and what a person could do with no window.
const Verbs common = {
    {"hide", [](const Act& act) { hide(*act.control); }},
    {"show", [](const Act& act) { show(*act.control); }},
    {"disable", [](const Act& act) { disable(*act.control); }},
    {"settext", [](const Act& act) { settext(*act.control, act.more); }},
    {"select", [](const Act& act) { select(act.as<OptionButton>()); }},
    {"sizeto", [](const Act& act) { resizeto(act.screen, act.number(), act.number()); }},
    {"end", [](const Act& act) { closescreen(act.screen); }},
    {"say", [](const Act& act) { act.screen.note(act.control->name + said(*act.control)); }},
};

// The part of a text before the mark; what follows is left. All of it where there is no mark.
std::string cut(std::string& text, const std::string& mark)
{
    const std::size_t at = text.find(mark);
    std::string part = text.substr(0, at);
    text = at == std::string::npos ? "" : text.substr(at + mark.size());
    return part;
}

} // namespace

void check(const Story& story, const Verbs& own)
{
    const testing::ScopedTrace trace(__FILE__, __LINE__, story.fault);
    std::string log;
    Everything third("third", log, nullptr);
    Everything second("second", log, &third);
    Everything all("all", log, &second);
    std::string on = "all";
    Acts acts;
    const std::string_view told = story.acts;
    const bool ends = told.ends_with("close") || told.ends_with("quit");
    for (std::string left = story.acts + std::string(ends ? "" : "; all: end"); !left.empty();) {
        std::string act = cut(left, "; ");
        on = act.find(": ") != std::string::npos ? cut(act, ": ") : on;
        const std::string verb = cut(act, " ");
        const std::string more = act;
        std::string name = cut(act, " ");
        Everything* screen = on == "second" ? &second : on == "third" ? &third : &all;
        if (name.find('.') != std::string::npos) {
            screen = &all;
            EXPECT_EQ(cut(name, "."), "all");
        }
        const auto found = std::find_if(screen->controls.begin(), screen->controls.end(),
                                        [&name](const Control* control) { return control->name == name; });
        Control* control = found == screen->controls.end() ? nullptr : *found;
        acts.push_back({on, verb, *screen, control, control == nullptr ? more : act});
    }
    Verbs verbs = common;
    verbs.insert(own.begin(), own.end());
    if (story.before) {
        story.before(all);
    }
    const std::unique_ptr<Stage> stage = makestage(verbs);
    stage->play(all, std::move(acts));
    EXPECT_EQ(log, std::string("resized to 9000") + (*story.log == 0 ? "" : ", ") + story.log + ", unloaded");
}

} // namespace brindor::tests
