#pragma once

#include "base/files.h"
#include "base/result.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brindor {

// Reads a text file strictly from front to back, in chunks. LF and CR LF end a line, the last line needs no end,
// and a UTF-8 byte order mark at the head is skipped. After a failure nothing more can be read.
class LineReader {
public:
    static Result<LineReader> open(const std::string& filename);

    // The whole next line without its end, good until the next call; nothing on a failure. `expected` says in the
    // failure text what was looked for.
    std::optional<std::string_view> line(std::string_view expected)
    {
        std::size_t end = rest_.find('\n');
        if (end == std::string_view::npos && !readon(end, expected)) {
            return std::nullopt;
        }
        ++lines_;
        std::string_view text(rest_.data(), end);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        if (text.ends_with('\r')) {
            text.remove_suffix(1);
        }
        return text;
    }

    // The next whole numbers of 16 bits, separated by commas, blanks or line ends, into `numbers`. Drops the rest of
    // the line on which the last of them stands. False on a failure.
    bool numbers(std::span<std::int16_t> numbers, std::string_view expected);

    // Makes what stands on the line last read a failure.
    void refuse(std::string_view what);

    // What went wrong, with the file and the line: "Medieval.bd3, line 214: " and so on. Empty as long as nothing did.
    const std::string& failure() const { return failure_; }

    std::int64_t linesread() const { return lines_; }

private:
    LineReader(OpenFile file, std::string filename);
    bool fill();                                              // reads one more chunk
    bool readon(std::size_t& end, std::string_view expected); // until the line has its end, or the file
    bool takeodd(std::int16_t& into, std::string_view value, std::string_view expected);

    OpenFile file_;
    std::string filename_;
    std::string failure_;
    std::vector<char> buffer_;
    std::string_view rest_; // of what buffer_ holds: what has not been read yet
    bool ended_ = false;
    std::int64_t lines_ = 0; // read so far
};

} // namespace brindor
