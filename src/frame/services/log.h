#pragma once

#include <cstdint>
#include <string>

// The question log of the current run, "bdqquiz.log" in the program's folder: plain text, one entry a line.
namespace brindor {

// Appends `text` as a line, unless `level` is below logstatus or the log is off; the file is complete on the disk
// after each call. A `popup` of 1 shows the text in a message, too. A failure to write is told once a run.
void logline(const std::string& text, std::int16_t level, std::int16_t popup);

// Makes the log or empties it. Called once, at start.
void resetlog();

} // namespace brindor
