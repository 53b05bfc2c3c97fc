#pragma once

#include "toolkit/host.h"

#include <QWidget>

namespace brindor::toolkit::qt {

// Shows a message in front of `window`, which may be none, and waits for the answer: true for OK and Yes. Escape and
// the close control mean No.
bool showmessage(const Message& message, QWidget* window);

// The base zoom has changed: a message that is open follows it.
void rezoommessages();

} // namespace brindor::toolkit::qt
