#pragma once

#include <functional>

namespace brindor::toolkit::qt {

// Makes the Qt application, runs `program` inside its event loop and gives back the exit status: 0 when `program`
// has returned. Where there is no display it prints one line on stderr and ends the process with status 1.
int runapplication(int argc, char** argv, const std::function<void()>& program);

} // namespace brindor::toolkit::qt
