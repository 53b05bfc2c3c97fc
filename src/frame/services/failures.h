#pragma once

#include <string>

namespace brindor {

// Tells that a file of the program cannot be written, and why; the first failure of a run only. The game goes on.
void tellfailureonce(const std::string& file, const std::string& reason);

// A new run: the next failure is told again. Called at start.
void forgetfailures();

} // namespace brindor
