#include "story.h"
#include "support/story.h"

namespace brindor::tests {

using namespace toolkit;

namespace {

constexpr double frametwips = 60; // two pixels on each side, as the offscreen platform has them

// The mouse goes down and comes up. An option that answers to the first is not selected.
void mouse(const Act& act)
{
    press(*act.control);
    if (act.control->kind != Kind::optionbutton || !act.as<OptionButton>().press) {
        click(*act.control);
    }
}

void typeletters(const Act& act)
{
    click(*act.control);
    for (const char letter : act.more) {
        type(*act.control, act.control->text + letter);
    }
}

void pickline(const Act& act)
{
    for (int times = act.verb == "twice" ? 2 : 1; times > 0; --times) {
        pick(*act.control, static_cast<std::int16_t>(act.number()));
    }
}

void letgo(const Act& act)
{
    if (act.screen.dragged != nullptr && (act.control->kind != Kind::label || !userdrop(act.as<Label>()))) {
        userdropnowhere(act.screen);
    }
}

std::function<void(const Act&)> of(bool (*deed)(Control&))
{
    return [deed](const Act& act) { deed(*act.control); };
}

std::function<void(const Act&)> of(bool (*deed)(Screen&))
{
    return [deed](const Act& act) { deed(act.screen); };
}

const Verbs acted = {
    {"click", mouse},
    {"right", of(press)},
    {"press", of(press)},
    {"space", of(click)},
    {"alt", of(click)},
    {"type", typeletters},
    {"pick", pickline},
    {"twice", pickline},
    {"letgo", letgo},
    {"stepup", [](const Act& act) { userstep(act.as<Spin>(), 1); }},
    {"stepdown", [](const Act& act) { userstep(act.as<Spin>(), -1); }},
    {"up", [](const Act& act) { userstep(act.as<TextBox>(), 1); }},
    {"return", of(userreturn)},
    {"escape", of(userescape)},
    {"close", of(userclose)},
    {"resize",
     [](const Act& act) { userresize(act.screen, act.number() * 15 + frametwips, act.screen.height, normal); }},
};

} // namespace

void play(Screen& screen, Acts acts, Verbs verbs)
{
    verbs.insert(acted.begin(), acted.end());
    MemoryHost host;
    host.frame = {frametwips, frametwips};
    verbs["yes"] = [&](const Act&) { host.answers = {true}; };
    verbs["no"] = [&](const Act&) { host.answers = {false}; };
    const auto next = [&] {
        const Act act = acts.front();
        acts.pop_front();
        verbs.at(act.verb)(act);
    };
    host.whilemessage = [&](const Message&) {
        host.answers.clear();
        while (host.answers.empty() && !acts.empty() && acts.front().on == "message") {
            next();
        }
    };
    for (const char* name : {"all", "second", "third"}) {
        host.persons[name] = [&](Screen& front) {
            const bool mine = !acts.empty() && acts.front().on == front.name;
            EXPECT_TRUE(mine) << "the story has no act for " << front.name;
            mine ? next() : closescreen(front);
        };
    }
    showmodal(screen);
    EXPECT_TRUE(acts.empty()) << acts.size() << " acts left";
}

} // namespace brindor::tests
