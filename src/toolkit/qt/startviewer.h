#pragma once

#include <string>

namespace brindor::toolkit::qt {

// Starts a text viewer with the file as a program of its own: "notepad" where the machine has one, else the viewer
// that lies beside this program. Any failure is ignored.
void startviewer(const std::string& file);

} // namespace brindor::toolkit::qt
