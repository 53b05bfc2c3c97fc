#pragma once

#include "toolkit/controls.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace brindor::tests {

// What a person can do, whatever the host. Each act goes where the person would see the control, whether or not it
// can be reached there.
class Person {
public:
    Person() = default;
    Person(const Person&) = delete;
    Person& operator=(const Person&) = delete;
    virtual ~Person() = default;

    virtual void click(toolkit::Control& control) = 0;
    virtual void rightpress(toolkit::OptionButton& option) = 0; // and lets go
    virtual void pressspace(toolkit::Control& control) = 0;     // with the keyboard on it
    virtual void pressaltkey(toolkit::Button& button) = 0;
    virtual void type(toolkit::TextBox& box, const std::string& more) = 0; // at the end of its text
    virtual void type(toolkit::Combo& combo, const std::string& more) = 0;
    virtual void clickline(toolkit::List& list, std::int16_t line) = 0;
    virtual void doubleclickline(toolkit::List& list, std::int16_t line) = 0;
    virtual void pickline(toolkit::Combo& combo, std::int16_t line) = 0;
    virtual void press(toolkit::Button& bar) = 0;                         // and holds it
    virtual void letgo(toolkit::Button& bar, toolkit::Control& over) = 0; // over the bar itself or another control
    virtual void stepup(toolkit::Spin& spin) = 0;
    virtual void pressup(toolkit::TextBox& box) = 0; // the key, in the field
    virtual void enter(toolkit::Screen& screen) = 0;
    virtual void escape(toolkit::Screen& screen) = 0;
    virtual void close(toolkit::Screen& screen) = 0;
    virtual void resize(toolkit::Screen& screen, int width, int height) = 0; // the inside, in pixels
    virtual void answer(bool yes) = 0;                                       // to the message in front
};

// One act, on the screen of a name or, with "message", while a message is shown.
struct Act {
    std::string on;
    std::function<void(Person&)> what;
};
using Story = std::deque<Act>;

// A host with a person before it who acts a story, one act after the other, each as soon as its screen waits. What
// is left of the story when the screen has closed, and a screen that waits for an act that does not come, fail the
// test.
class Stage {
public:
    Stage() = default;
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    virtual ~Stage() = default;
    virtual void play(toolkit::Screen& screen, Story story) = 0;
};

std::unique_ptr<Stage> memorystage();
std::unique_ptr<Stage> windowstage();

} // namespace brindor::tests
