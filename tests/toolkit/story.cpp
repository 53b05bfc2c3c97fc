#include "story.h"
#include "support/story.h"

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
    {"clear",
     [](const Act& act) { act.control->kind == Kind::list ? clearlist(act.as<List>()) : clearlist(act.as<Combo>()); }},
    {"end", [](const Act& act) { closescreen(act.screen); }},
    {"say", [](const Act& act) { act.screen.note(act.control->name + said(*act.control)); }},
};

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
    for (const std::string& act : split(story.acts + std::string(ends ? "" : "; all: end"), "; ")) {
        std::vector<std::string> words = split(act, " ");
        if (words.front().ends_with(':')) {
            on = words.front().substr(0, words.front().size() - 1);
            words.erase(words.begin());
        }
        words.resize(3); // the verb, the control, what more
        const bool below = words[1].starts_with("all.");
        Everything& screen = below ? all : on == "second" ? second : on == "third" ? third : all;
        const std::string name = words[1].substr(below ? 4 : 0);
        const auto& controls = screen.controls;
        const auto found = std::find_if(controls.begin(), controls.end(), [&](auto* at) { return at->name == name; });
        Control* control = found == controls.end() ? nullptr : *found;
        acts.push_back({on, words[0], screen, control, words[control == nullptr ? 1 : 2]});
    }
    Verbs verbs = common;
    verbs.insert(own.begin(), own.end());
    if (story.before) {
        story.before(all);
    }
    const std::string first = all.sized();
    play(all, std::move(acts), std::move(verbs));
    EXPECT_EQ(log, first + (*story.log == 0 ? "" : ", ") + story.log + ", unloaded");
}

} // namespace brindor::tests
