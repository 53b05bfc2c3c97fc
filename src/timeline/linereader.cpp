#include "timeline/linereader.h"

#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <utility>

namespace brindor {

namespace {

constexpr std::size_t chunk = 262144;
constexpr std::size_t longestline = 1048576; // no real line comes near; keeps a file without line ends out of memory

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
    reader.rest_ = withoutmark(reader.rest_);
    return {std::move(reader), {}};
}

// What is left moves to the front; the buffer grows only for a line that takes most of it.
bool LineReader::fill()
{
    const std::size_t left = rest_.size();
    if (left > 0) {
        std::memmove(buffer_.data(), rest_.data(), left);
    }
    if (left > buffer_.size() / 2) {
        buffer_.resize(buffer_.size() * 2);
    }
    const Result<std::size_t> got = readsome(file_, std::span(buffer_).subspan(left));
    rest_ = {buffer_.data(), left + got.value.value_or(0)};
    if (!got) {
        refuse("cannot be read: " + got.reason + ". Check the disk and choose the period again.");
        return false;
    }
    ended_ = *got.value == 0;
    return true;
}

bool LineReader::readon(std::size_t& end, std::string_view expected)
{
    while (end == std::string_view::npos && !ended_) {
        const std::size_t searched = rest_.size();
        if (!fill()) {
            return false;
        }
        end = rest_.find('\n', searched);
        if (std::min(end, rest_.size()) > longestline) {
            ++lines_;
            refuse("the line is longer than " + numbertext(std::int64_t{longestline}) +
                   " bytes. Check that this is a timeline file.");
            return false;
        }
    }
    if (rest_.empty()) {
        refuse("the file ends here, but " + std::string(expected) +
               " should follow. Complete the file and choose the period again.");
        return false;
    }
    end = std::min(end, rest_.size());
    return true;
}

bool LineReader::numbers(std::span<std::int16_t> numbers, std::string_view expected)
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
