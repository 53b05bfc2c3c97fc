#include "timeline/linereader.h"

#include "base/numbers.h"
#include "base/text.h"

#include <utility>

namespace brindor {

namespace {

constexpr std::size_t chunk = 65536;
constexpr std::int64_t longestline = 1048576; // no real line comes near; keeps a file without line ends out of memory

// Long tokens of a broken file are cut in messages.
std::string quoted(std::string_view found)
{
    constexpr std::size_t longest = 40;
    return '"' + std::string(found.substr(0, longest)) + (found.size() > longest ? "...\"" : "\"");
}

} // namespace

LineReader::LineReader(OpenFile file, std::string filename) : file_(std::move(file)), filename_(std::move(filename)) {}

Result<LineReader> LineReader::open(const std::string& filename)
{
    Result<OpenFile> file = openforreading(filename);
    if (!file) {
        return {std::nullopt, filename + " cannot be opened: " + file.reason +
                                  ". Put the file into the program's folder, or choose another period."};
    }
    LineReader reader(std::move(*file.value), filename);
    if (Result<Done> first = reader.fill(); !first) {
        return {std::nullopt, first.reason};
    }
    reader.at_ = reader.buffer_.size() - withoutmark(reader.buffer_).size();
    return {std::move(reader), {}};
}

Result<Done> LineReader::fill()
{
    buffer_.erase(0, at_);
    at_ = 0;
    const std::size_t before = buffer_.size();
    buffer_.resize(before + chunk);
    const Result<std::size_t> got = readsome(file_, std::span(buffer_).subspan(before));
    buffer_.resize(before + got.value.value_or(0));
    if (!got) {
        return {std::nullopt,
                failure("cannot be read: " + got.reason + ". Check the disk and choose the period again.")};
    }
    ended_ = *got.value == 0;
    return {Done{}, {}};
}

Result<std::string> LineReader::line(std::string_view expected)
{
    std::size_t searched = at_;
    std::size_t end = buffer_.find('\n', searched);
    while (end == std::string::npos && !ended_) {
        if (std::ssize(buffer_) - static_cast<std::ptrdiff_t>(at_) > longestline) {
            ++lines_;
            return {std::nullopt,
                    failure("the line is longer than " + numbertext(longestline) +
                            " bytes. Check that this is a timeline file.")};
        }
        searched = buffer_.size() - at_; // the fill moves what is left to the front
        if (Result<Done> more = fill(); !more) {
            return {std::nullopt, more.reason};
        }
        end = buffer_.find('\n', searched);
    }
    if (end == std::string::npos && at_ == buffer_.size()) {
        return {std::nullopt, failure("the file ends here, but " + std::string(expected) +
                                      " should follow. Complete the file and choose the period again.")};
    }
    ++lines_;
    std::string text = buffer_.substr(at_, end == std::string::npos ? end : end - at_);
    at_ = end == std::string::npos ? buffer_.size() : end + 1;
    if (!text.empty() && text.back() == '\r') {
        text.pop_back();
    }
    return {std::move(text), {}};
}

Result<Done> LineReader::numbers(std::span<std::int16_t> numbers, std::string_view expected)
{
    std::size_t found = 0;
    while (found < numbers.size()) {
        const Result<std::string> text = line(expected);
        if (!text) {
            return {std::nullopt, text.reason};
        }
        std::string_view rest = *text.value;
        for (std::string_view token = takevalue(rest); !token.empty() && found < numbers.size();
             token = takevalue(rest)) {
            const std::optional<std::int64_t> number = wholenumber(token);
            if (!number) {
                return {std::nullopt, failure(quoted(token) + " is not a whole number. Correct " +
                                              std::string(expected) + " and choose the period again.")};
            }
            const std::optional<std::int16_t> fitting = toint16(*number);
            if (!fitting) {
                return {std::nullopt, failure(quoted(token) + ' ' + std::string(outside16) + ". Correct " +
                                              std::string(expected) + " and choose the period again.")};
            }
            numbers[found++] = *fitting;
        }
    }
    return {Done{}, {}};
}

std::string LineReader::failure(std::string_view what) const
{
    return filename_ + ", line " + numbertext(lines_) + ": " + std::string(what);
}

} // namespace brindor
