#pragma once

#include "base/result.h"

#include <cstdint>
#include <string>
#include <vector>

namespace brindor {

// Loads the file of curperiod and clears the used marks, whether the file could be read or not.
void loadperiod();

// Reads a timeline file into the Timeline, whole and in one pass, and sets both cursors to 0. A failure is told in
// one message; what was read up to it stays, the counters as read, and the cursors keep their values. A file that
// cannot be opened changes nothing at all.
void readtimeline(const std::string& filename);

// The line, from 1, on which each record's name stands.
struct RecordLines {
    std::vector<std::int64_t> people;
    std::vector<std::int64_t> events;
};

// The same without the message: the failure text is handed back. Where `lines` is given, the lines of the records
// that were read are added to it.
Result<Done> filltimeline(const std::string& filename, RecordLines* lines = nullptr);

} // namespace brindor
