#pragma once

#include "everything.h"

#include <deque>
#include <map>

namespace brindor::tests {

// One act on the screen of a name or, with "message", while a message is shown: what is done, to which control of
// which screen, and what more the verb takes.
struct Act {
    std::string on;
    std::string verb;
    Everything& screen;
    toolkit::Control* control; // none where the act is for the whole screen
    std::string more;

    template <class Kind>
    Kind& as() const
    {
        return static_cast<Kind&>(*control);
    }
    int number() const { return more.empty() ? 0 : std::stoi(more); }
};
using Acts = std::deque<Act>;

// What a person can do, by verb. Each act goes where the person would see the control, whether or not it can be
// reached there.
using Verbs = std::map<std::string, std::function<void(const Act&)>>;

// Shows the screen on the host that the test program is linked with. A person before it does the acts, one after the
// other, each as soon as its screen waits. What is left of them when the screen has closed, and a screen that waits for
// an act that does not come, fail the test. `verbs` are those that are the same on every host.
void play(toolkit::Screen& screen, Acts acts, Verbs verbs);

// A story: "click go; second: type all.line ab; message: yes". An act is a verb, a control (of the screen that acts,
// or another's, "all.line") and what more the verb takes. "second:" before an act says which screen must be in front
// from then on; the story begins on "all", with "second" and "third" above it. What the program itself does is told
// by verbs as well. At the end "all" is closed, and the log must be as the story says; "say" puts a control in it.
struct Story {
    const char* fault; // that it would catch
    std::function<void(Everything& all)> before;
    const char* acts;
    const char* log;
};
void check(const Story& story, const Verbs& own = {}); // `own` are verbs that only this test knows

} // namespace brindor::tests
