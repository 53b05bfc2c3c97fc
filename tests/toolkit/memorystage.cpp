#include "person.h"
#include "support/memoryhost.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

namespace brindor::tests {

using namespace toolkit;

namespace {

constexpr double frametwips = 60; // two pixels on each side, as the offscreen platform has them

class MemoryPerson : public Person {
public:
    explicit MemoryPerson(MemoryHost& host) : host_(host) {}

    void click(Control& control) override
    {
        switch (control.kind) {
        case Kind::button:
            if (auto& button = static_cast<Button&>(control); button.bar) {
                userpress(button);
                userclick(button);
            } else {
                userclick(button);
            }
            break;
        case Kind::optionbutton:
            if (auto& option = static_cast<OptionButton&>(control); option.press) {
                userpress(option);
            } else {
                userclick(option);
            }
            break;
        case Kind::label:
            userclick(static_cast<Label&>(control));
            break;
        case Kind::picture:
            userclick(static_cast<Picture&>(control));
            break;
        default:
            userfocus(control);
        }
    }

    void rightpress(OptionButton& option) override { userpress(option); }

    void pressspace(Control& control) override
    {
        if (control.kind == Kind::optionbutton) {
            userclick(static_cast<OptionButton&>(control));
        } else {
            userclick(static_cast<Button&>(control));
        }
    }

    void pressaltkey(Button& button) override { userclick(button); }
    void type(TextBox& box, const std::string& more) override { typeinto(box, more); }
    void type(Combo& combo, const std::string& more) override { typeinto(combo, more); }
    void clickline(List& list, std::int16_t line) override { userpick(list, line); }

    void doubleclickline(List& list, std::int16_t line) override
    {
        userpick(list, line);
        userpick(list, line);
    }

    void pickline(Combo& combo, std::int16_t line) override { userpick(combo, line); }
    void press(Button& bar) override { userpress(bar); }

    void letgo(Button& bar, Control& over) override
    {
        if (bar.screen->dragged != &bar) {
            return;
        }
        if (&over == &bar) {
            userclick(bar);
        } else if (over.kind != Kind::label || !userdrop(static_cast<Label&>(over))) {
            userdropnowhere(*bar.screen);
        }
    }

    void stepup(Spin& spin) override { userstep(spin, 1); }
    void pressup(TextBox& box) override { userstep(box, 1); }
    void enter(Screen& screen) override { userreturn(screen); }
    void escape(Screen& screen) override { userescape(screen); }
    void close(Screen& screen) override { userclose(screen); }

    void resize(Screen& screen, int width, int height) override
    {
        userresize(screen, width * 15 + frametwips, height * 15 + frametwips, normal);
    }

    void answer(bool yes) override
    {
        if (question) {
            host_.answers.push_back(yes);
        }
        answered = true;
    }

    bool question = false; // of the message in front
    bool answered = false;

private:
    template <class Field>
    static void typeinto(Field& field, const std::string& more)
    {
        userfocus(field);
        for (const char letter : more) {
            usertype(field, field.text + letter);
        }
    }

    MemoryHost& host_;
};

class MemoryStage : public Stage {
public:
    MemoryStage() : person_(host_)
    {
        host_.frame = {frametwips, frametwips};
        host_.whilemessage = [this](const Message& message) {
            person_.question = message.question;
            person_.answered = false;
            while (!person_.answered && !story_.empty() && story_.front().on == "message") {
                next();
            }
        };
    }

    void play(Screen& screen, Story story) override
    {
        story_ = std::move(story);
        for (const Act& act : story_) {
            host_.persons[act.on] = [this](Screen& front) {
                if (story_.empty() || story_.front().on != front.name) {
                    ADD_FAILURE() << "the story has no act for " << front.name;
                    closescreen(front);
                } else {
                    next();
                }
            };
        }
        showmodal(screen);
        EXPECT_TRUE(story_.empty()) << story_.size() << " acts left";
    }

private:
    void next()
    {
        const Act act = std::move(story_.front());
        story_.pop_front();
        act.what(person_);
    }

    MemoryHost host_;
    MemoryPerson person_;
    Story story_;
};

} // namespace

std::unique_ptr<Stage> memorystage()
{
    return std::make_unique<MemoryStage>();
}

} // namespace brindor::tests
