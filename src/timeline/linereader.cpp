#include "timeline/linereader.h"

#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

namespace brindor {

namespace {

constexpr std::size_t chunk = 65536;
constexpr std::ptrdiff_t longestline = 1048576; // no real line comes near; keeps a file without line ends out of memory

// Long tokens of a broken file are cut in messages.
std::string quoted(std::string_view found)
{
    constexpr std::size_t longest = 40;
    return '"' + std::string(found.substr(0, longest)) + (found.size() > longest ? "...\"" : "\"");
}

} // namespace

LineReader::LineReader(OpenFile file, std::string filename)
    : file_(std::move(file)), filename_(std::move(filename)), buffer_(chunk)
{
}

Result<LineReader> LineReader::open(const std::string& filename)
{
    Result<OpenFile> file = openforreading(filename);
    if (!file) {
        return {std::nullopt, filename + " cannot be opened: " + file.reason +
                                  ". Put the file into the program's folder, or choose another period."};
    }
    LineReader reader(std::move(*file.value), filename);
    if (!reader.fill()) {
        return {std::nullopt, reader.failure_};
    }
    reader.at_ = withoutmark(between(reader.at_, reader.end_)).data();
    return {std::move(reader), {}};
}

// What is left moves to the front; the buffer grows only for a line that takes most of it. A last line without an end
// is given one.
bool LineReader::fill()
{
    const std::size_t left = static_cast<std::size_t>(end_ - at_);
    if (left > 0) {
        std::memmove(buffer_.data(), at_, left);
    }
    if (left > buffer_.size() / 2) {
        buffer_.resize(buffer_.size() * 2);
    }
    constexpr std::size_t spare = 2; // for that end, and a 0
    const std::size_t room = buffer_.size() - left - spare;
    const Result<std::size_t> got = readsome(file_, std::span(buffer_).subspan(left, room));
    ended_ = got && *got.value == 0;
    std::size_t held = left + got.value.value_or(0);
    if (ended_ && left > 0) {
        buffer_[held++] = '\n';
    }
    buffer_[held] = '\0';
    at_ = buffer_.data();
    end_ = at_ + held;
    if (!got) {
        refuse("cannot be read: " + got.reason + ". Check the disk and choose the period again.");
        return false;
    }
    return true;
}

bool LineReader::readon(const char*& end, std::string_view expected)
{
    while (end == nullptr && !ended_) {
        const std::ptrdiff_t searched = end_ - at_;
        if (!fill()) {
            return false;
        }
        end = lineend(at_ + searched);
        if ((end == nullptr ? end_ : end) - at_ > longestline) {
            ++lines_;
            refuse("the line is longer than " + numbertext(std::int64_t{longestline}) +
                   " bytes. Check that this is a timeline file.");
            return false;
        }
    }
    if (end == nullptr) {
        refuse("the file ends here, but " + std::string(expected) +
               " should follow. Complete the file and choose the period again.");
        return false;
    }
    return true;
}

bool LineReader::oddnumbers(std::span<std::int16_t> numbers, std::string_view expected)
{
    std::size_t found = 0;
    while (found < numbers.size()) {
        std::optional<std::string_view> text = line(expected);
        if (!text) {
            return false;
        }
        for (std::string_view value = takevalue(*text); !value.empty() && found < numbers.size();
             value = takevalue(*text)) {
            std::int16_t& into = numbers[found++];
            const char* const end = value.data() + value.size();
            const auto plain = std::from_chars(value.data(), end, into);
            if ((plain.ptr != end || plain.ec != std::errc()) && !takeodd(into, value, expected)) {
                return false;
            }
        }
    }
    return true;
}

// A number with a plus sign, or a failure.
bool LineReader::takeodd(std::int16_t& into, std::string_view value, std::string_view expected)
{
    const std::optional<std::int64_t> number = wholenumber(value);
    const std::optional<std::int16_t> fitting = number ? toint16(*number) : std::nullopt;
    if (!fitting) {
        refuse(quoted(value) + ' ' + std::string(number ? outside16 : "is not a whole number") + ". Correct " +
               std::string(expected) + " and choose the period again.");
        return false;
    }
    into = *fitting;
    return true;
}

void LineReader::refuse(std::string_view what)
{
    failure_ = filename_ + ", line " + numbertext(lines_) + ": " + std::string(what);
}

} // namespace brindor
