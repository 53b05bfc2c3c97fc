#pragma once

#include "toolkit/operations.h"
#include "toolkit/user.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <stdexcept>

namespace brindor::tests {

// A host without windows. While a screen waits, a scripted person acts through toolkit/user.h; what was shown and
// said is kept for the test to look at.
class MemoryHost : public toolkit::Host {
public:
    using Person = std::function<void(toolkit::Screen&)>;

    MemoryHost() : before_(toolkit::sethost(this)) {}
    ~MemoryHost() override { toolkit::sethost(before_); }

    // Who acts on the screen of a name; called again and again until the screen has closed. A screen that waits for
    // nobody, or for a person who does not close it within `patience` acts, fails the test and is closed.
    std::map<std::string, Person> persons;
    int patience = 10000;
    std::function<void(const toolkit::Message&)> whilemessage; // runs while a message is open

    std::deque<bool> answers; // to the coming questions; No when none is left
    std::vector<toolkit::Message> messages;
    std::vector<std::string> shown;      // names of the screens, in the order in which they were shown
    std::map<std::string, int> pictures; // 0 for a picture that loads, else its error number
    std::vector<std::string> viewed;
    toolkit::Size display{1024 * 15, 768 * 15};
    toolkit::Size frame{30, 375};
    bool wantsquit = false;

    void create(toolkit::Screen&) override {}
    void show(toolkit::Screen& screen) override { shown.push_back(screen.name); }
    void wait(toolkit::Screen& screen) override
    {
        for (int acts = 0; !screen.closed && !wantsquit; ++acts) {
            const auto person = persons.find(screen.name);
            if (person == persons.end() || acts == patience) {
                ADD_FAILURE() << "nobody closes the screen " << screen.name;
                return closescreen(screen);
            }
            person->second(screen);
        }
    }
    void drop(toolkit::Screen&) override {}
    void update(toolkit::Control&) override {}
    void update(toolkit::Screen&) override {}
    void focus(toolkit::Control&) override {}
    bool message(const toolkit::Message& message) override
    {
        messages.push_back(message);
        if (whilemessage) {
            whilemessage(message);
        }
        const bool answer = !answers.empty() && answers.front();
        if (message.question && !answers.empty()) {
            answers.pop_front();
        }
        return answer || !message.question;
    }
    toolkit::Size displaysize() override { return display; }
    toolkit::Size framesize() override { return frame; }
    toolkit::LoadedPicture loadpicture(const std::string& file) override
    {
        const auto known = pictures.find(file);
        const int error = known == pictures.end() ? 53 : known->second;
        const toolkit::PictureRef picture(new toolkit::PictureData{std::make_shared<std::string>(file), 640, 480});
        return {error == 0 ? picture : nullptr, error};
    }
    void startviewer(const std::string& file) override { viewed.push_back(file); }
    bool quitting() override { return wantsquit; }

private:
    toolkit::Host* before_;
};

// The control of a name; throws where the screen has none.
inline toolkit::Control& controlof(const toolkit::Screen& screen, const std::string& name)
{
    for (toolkit::Control* control : screen.controls) {
        if (control->name == name) {
            return *control;
        }
    }
    throw std::out_of_range(screen.name + " has no control " + name);
}

// The same, for a caller who knows its kind; throws where it is another.
template <class Control>
Control& find(toolkit::Screen& screen, const std::string& name)
{
    toolkit::Control& control = controlof(screen, name);
    return control.kind == Control().kind ? static_cast<Control&>(control) : throw std::invalid_argument(name);
}

} // namespace brindor::tests
