#pragma once

#include "base/result.h"

#include <string>

namespace brindor {

// Loads the file of curperiod and clears the used marks, whether the file could be read or not.
void loadperiod();

// Reads a timeline file into the Timeline, whole and in one pass, and sets both cursors to 0. A failure is told in
// one message; what was read up to it stays, the counters as read, and the cursors keep their values. A file that
// cannot be opened changes nothing at all.
void readtimeline(const std::string& filename);

// The same without the message: the failure text is handed back.
Result<Done> filltimeline(const std::string& filename);

} // namespace brindor
