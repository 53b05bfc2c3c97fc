#pragma once

#include "everything.h"

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

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

// A host with a person before it who acts a story, one act after the other, each as soon as its screen waits. What
// is left of the story when the screen has closed, and a screen that waits for an act that does not come, fail the
// test.
class Stage {
public:
    virtual ~Stage() = default;
    virtual void play(toolkit::Screen& screen, Acts acts) = 0;
};

// The stage that a test program is linked with. `own` are verbs that only its test knows.
std::unique_ptr<Stage> makestage(const Verbs& own);
const char* stagename();

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
inline void PrintTo(const Story& /*story*/, std::ostream* out)
{
    *out << stagename();
}
void check(const Story& story, const Verbs& own = {});

} // namespace brindor::tests
