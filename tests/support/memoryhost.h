#pragma once

#include "toolkit/host.h"
#include "toolkit/operations.h"
#include "toolkit/user.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

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
    std::vector<std::string> picturesasked;
    std::vector<std::string> viewed;
    toolkit::Size display{1024 * 15, 768 * 15};
    toolkit::Size frame{30, 375};
    bool wantsquit = false;
    int updates = 0;

    void create(toolkit::Screen&) override {}
    void show(toolkit::Screen& screen) override { shown.push_back(screen.name); }
    void wait(toolkit::Screen& screen) override;
    void drop(toolkit::Screen&) override {}
    void update(toolkit::Control&) override { ++updates; }
    void update(toolkit::Screen&) override { ++updates; }
    void focus(toolkit::Control&) override {}
    bool message(const toolkit::Message& message) override;
    toolkit::Size displaysize() override { return display; }
    toolkit::Size framesize() override { return frame; }
    toolkit::LoadedPicture loadpicture(const std::string& file) override;
    void startviewer(const std::string& file) override { viewed.push_back(file); }
    bool quitting() override { return wantsquit; }

private:
    toolkit::Host* before_;
};

// The control of a name and kind; throws where the screen has none.
toolkit::Control& controlof(toolkit::Screen& screen, const std::string& name, toolkit::Kind kind);

template <class Control>
Control& find(toolkit::Screen& screen, const std::string& name)
{
    return static_cast<Control&>(controlof(screen, name, Control().kind));
}

} // namespace brindor::tests
