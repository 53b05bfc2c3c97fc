#include "story.h"
#include "support/memoryhost.h"

#include <gtest/gtest.h>

#include <utility>

namespace brindor::tests {

using namespace toolkit;

namespace {

constexpr double frametwips = 60; // two pixels on each side, as the offscreen platform has them

void click(const Act& act)
{
    if (act.control->kind == Kind::button) {
        userpress(act.as<Button>());
        userclick(act.as<Button>());
    } else if (act.control->kind == Kind::optionbutton) {
        auto& option = act.as<OptionButton>();
        option.press ? userpress(option) : userclick(option);
    } else if (act.control->kind == Kind::label) {
        userclick(act.as<Label>());
    } else {
        userfocus(*act.control);
    }
}

void space(const Act& act)
{
    act.control->kind == Kind::button ? userclick(act.as<Button>()) : userclick(act.as<OptionButton>());
}

void type(const Act& act)
{
    userfocus(*act.control);
    for (const char letter : act.more) {
        const std::string text = act.control->text + letter;
        act.control->kind == Kind::combo ? usertype(act.as<Combo>(), text) : usertype(act.as<TextBox>(), text);
    }
}

void pick(const Act& act)
{
    const auto line = static_cast<std::int16_t>(act.number());
    for (int times = act.verb == "twice" ? 2 : 1; times > 0; --times) {
        act.control->kind == Kind::combo ? userpick(act.as<Combo>(), line) : userpick(act.as<List>(), line);
    }
}

void letgo(const Act& act)
{
    if (act.screen.dragged != nullptr && (act.control->kind != Kind::label || !userdrop(act.as<Label>()))) {
        userdropnowhere(act.screen);
    }
}

const Verbs acted = {
    {"click", click},
    {"right", [](const Act& act) { userpress(act.as<OptionButton>()); }},
    {"space", space},
    {"alt", [](const Act& act) { userclick(act.as<Button>()); }},
    {"type", type},
    {"pick", pick},
    {"twice", pick},
    {"press", [](const Act& act) { userpress(act.as<Button>()); }},
    {"letgo", letgo},
    {"stepup", [](const Act& act) { userstep(act.as<Spin>(), 1); }},
    {"stepdown", [](const Act& act) { userstep(act.as<Spin>(), -1); }},
    {"up", [](const Act& act) { userstep(act.as<TextBox>(), 1); }},
    {"return", [](const Act& act) { userreturn(act.screen); }},
    {"escape", [](const Act& act) { userescape(act.screen); }},
    {"close", [](const Act& act) { userclose(act.screen); }},
    {"resize",
     [](const Act& act) { userresize(act.screen, act.number() * 15 + frametwips, act.screen.height, normal); }},
};

class MemoryStage : public Stage {
public:
    explicit MemoryStage(Verbs verbs) : verbs_(std::move(verbs))
    {
        verbs_.insert(acted.begin(), acted.end());
        verbs_["yes"] = [this](const Act&) { answer(true); };
        verbs_["no"] = [this](const Act&) { answer(false); };
        host_.frame = {frametwips, frametwips};
        host_.whilemessage = [this](const Message& message) {
            question_ = message.question;
            answered_ = false;
            while (!answered_ && !acts_.empty() && acts_.front().on == "message") {
                next();
            }
        };
    }

    void play(Screen& screen, Acts acts) override
    {
        acts_ = std::move(acts);
        for (const char* name : {"all", "second", "third"}) {
            host_.persons[name] = [this](Screen& front) {
                const bool mine = !acts_.empty() && acts_.front().on == front.name;
                EXPECT_TRUE(mine) << "the story has no act for " << front.name;
                mine ? next() : closescreen(front);
            };
        }
        showmodal(screen);
        EXPECT_TRUE(acts_.empty()) << acts_.size() << " acts left";
    }

private:
    void next()
    {
        const Act act = acts_.front();
        acts_.pop_front();
        verbs_.at(act.verb)(act);
    }

    void answer(bool yes)
    {
        if (question_) {
            host_.answers.push_back(yes);
        }
        answered_ = true;
    }

    Verbs verbs_;
    MemoryHost host_;
    Acts acts_;
    bool question_ = false; // of the message in front
    bool answered_ = false;
};

} // namespace

std::unique_ptr<Stage> makestage(const Verbs& own)
{
    return std::make_unique<MemoryStage>(own);
}

const char* stagename()
{
    return "in memory";
}

} // namespace brindor::tests
