#pragma once

#include "toolkit/controls.h"
#include "toolkit/host.h"

#include <functional>

// The stack of open screens and the host in force, for the files of toolkit/ only.
namespace brindor::toolkit {

Host& host(); // the host in force; ends the program with a message where none was set

bool haswindow(const Screen& screen);

// Whether a person could reach the control: its screen on top and shown, no message open, itself and all that
// hold it visible and enabled.
bool reachable(const Control& control);

// Runs an event's handler, if it has one. The handler is copied first, since it may end the screen that holds it.
template <class... Values>
void raise(const std::function<void(Values...)>& event, Values... values)
{
    if (event) {
        const std::function<void(Values...)> handler = event;
        handler(values...);
    }
}

} // namespace brindor::toolkit
