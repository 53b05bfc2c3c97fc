#pragma once

#include "base/files.h"
#include "base/result.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace brindor {

// Reads a text file strictly from front to back, in chunks. LF and CR LF end a line, the last line needs no end,
// and a UTF-8 byte order mark at the head is skipped. Failures name the file and the line.
class LineReader {
public:
    static Result<LineReader> open(const std::string& filename);

    // The whole next line without its end. `expected` says in the failure text what was looked for.
    Result<std::string> line(std::string_view expected);

    // The next whole numbers of 16 bits, separated by commas, blanks or line ends, into `numbers`. Drops the rest of
    // the line on which the last of them stands.
    Result<Done> numbers(std::span<std::int16_t> numbers, std::string_view expected);

    std::int64_t linesread() const { return lines_; }

    // A failure at the line last read: "Medieval.bd3, line 214: " and `what`.
    std::string failure(std::string_view what) const;

private:
    LineReader(OpenFile file, std::string filename);
    Result<Done> fill(); // reads one more chunk

    OpenFile file_;
    std::string filename_;
    std::string buffer_;
    std::size_t at_ = 0; // in buffer_
    bool ended_ = false;
    std::int64_t lines_ = 0; // read so far
};

} // namespace brindor
