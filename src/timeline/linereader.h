#pragma once

#include "base/files.h"
#include "base/numbers.h"
#include "base/result.h"
#include "base/text.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
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
        const char* end = lineend(at_);
        if (end == nullptr && !readon(end, expected)) {
            return std::nullopt;
        }
        std::string_view text = between(at_, end);
        at_ = end + 1;
        ++lines_;
        if (text.ends_with('\r')) {
            text.remove_suffix(1);
        }
        return text;
    }

    // The next whole numbers of 16 bits, separated by commas, blanks or line ends, into `numbers`. Drops the rest of
    // the line on which the last of them stands. False on a failure.
    bool numbers(std::span<std::int16_t> numbers, std::string_view expected)
    {
        return plainnumbers(numbers) || oddnumbers(numbers, expected);
    }

    // Makes what stands on the line last read a failure.
    void refuse(std::string_view what);

    // What went wrong, with the file and the line: "Medieval.bd3, line 214: " and so on. Empty as long as nothing did.
    const std::string& failure() const { return failure_; }

    std::int64_t linesread() const { return lines_; }

private:
    // nullptr where it has not been read yet.
    const char* lineend(const char* from) const
    {
        return static_cast<const char*>(std::memchr(from, '\n', static_cast<std::size_t>(end_ - from)));
    }

    // Takes numbers that stand on one line as a program writes them: nothing before the first, nothing but separators
    // between them, nothing behind the last. Where anything is unlike that, nothing is taken, and the result is false.
    bool plainnumbers(std::span<std::int16_t> numbers)
    {
        const char* at = at_;
        for (std::int16_t& number : numbers) {
            if (&number != &numbers.front()) {
                if (!separates(*at)) {
                    return false;
                }
                while (separates(*++at)) {
                }
            }
            const bool negative = *at == '-';
            at += negative ? 1 : 0;
            const char* const digits = at;
            std::uint32_t amount = 0; // of the last digits, if there are too many
            for (; isdigit(*at); ++at) {
                amount = amount * 10 + static_cast<std::uint32_t>(*at - '0');
            }
            const std::int64_t value = negative ? -std::int64_t{amount} : std::int64_t{amount};
            const std::optional<std::int16_t> fitting = toint16(value);
            constexpr std::ptrdiff_t mostdigits = 5;
            if (at == digits || at - digits > mostdigits || !fitting) {
                return false;
            }
            number = *fitting;
        }
        at += *at == '\r' ? 1 : 0;
        if (*at != '\n') {
            return false;
        }
        at_ = at + 1;
        ++lines_;
        return true;
    }

    LineReader(OpenFile file, std::string filename);
    bool fill();                                              // reads one more chunk
    bool readon(const char*& end, std::string_view expected); // until the line has its end
    bool oddnumbers(std::span<std::int16_t> numbers, std::string_view expected);
    bool takeodd(std::int16_t& into, std::string_view value, std::string_view expected);

    OpenFile file_;
    std::string filename_;
    std::string failure_;
    std::vector<char> buffer_;
    const char* at_ = nullptr; // what buffer_ holds and has not been taken yet; a 0 stands behind it
    const char* end_ = nullptr;
    bool ended_ = false;
    std::int64_t lines_ = 0; // read so far
};

} // namespace brindor
