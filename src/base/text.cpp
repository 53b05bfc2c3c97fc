#include "base/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace brindor {

namespace {

unsigned byteat(std::string_view bytes, std::size_t at)
{
    return static_cast<unsigned char>(bytes[at]);
}

// The length of the valid UTF-8 sequence at `at`, 0 where there is none.
std::size_t sequencelength(std::string_view bytes, std::size_t at)
{
    const unsigned first = byteat(bytes, at);
    if (first < 0x80) {
        return 1;
    }
    const std::size_t length = first >= 0xC2 && first <= 0xDF   ? 2
                               : first >= 0xE0 && first <= 0xEF ? 3
                               : first >= 0xF0 && first <= 0xF4 ? 4
                                                                : 0;
    if (length == 0 || at + length > bytes.size()) {
        return 0;
    }
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteat(bytes, at + i) & 0xC0) != 0x80) {
            return 0;
        }
    }
    const unsigned second = byteat(bytes, at + 1);
    const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
    const bool surrogate = first == 0xED && second > 0x9F;
    const bool toohigh = first == 0xF4 && second > 0x8F;
    return overlong || surrogate || toohigh ? 0 : length;
}

void appendcodepoint(std::string& text, char32_t point)
{
    const auto put = [&text](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
    if (point < 0x80) {
        put(point);
    } else if (point < 0x800) {
        put(0xC0 | (point >> 6));
        put(0x80 | (point & 0x3F));
    } else {
        put(0xE0 | (point >> 12));
        put(0x80 | ((point >> 6) & 0x3F));
        put(0x80 | (point & 0x3F));
    }
}

// Windows-1252 from 0x80 to 0x9F; all other bytes are the code points of the same number.
constexpr std::array<char32_t, 32> windows1252 = {0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                                  0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

bool issign(char c)
{
    return c == '+' || c == '-';
}

int digitvalue(char c)
{
    if (isdigit(c)) {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : 99;
}

std::string withoutblanks(std::string_view text)
{
    std::string kept;
    for (const char c : text) {
        if (c != ' ' && c != '\t' && c != '\n') {
            kept += c;
        }
    }
    return kept;
}

double basedvalue(std::string_view digits, int base)
{
    double value = 0;
    for (const char c : digits) {
        const int digit = digitvalue(c);
        if (digit >= base) {
            break;
        }
        value = value * base + digit;
    }
    return value;
}

std::size_t skipdigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && isdigit(text[at])) {
        ++at;
    }
    return at;
}

} // namespace

bool isutf8(std::string_view bytes)
{
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t length = sequencelength(bytes, at);
        if (length == 0) {
            return false;
        }
        at += length;
    }
    return true;
}

std::string toutf8(std::string_view bytes)
{
    if (isutf8(bytes)) {
        return std::string(bytes);
    }
    std::string text;
    for (std::size_t at = 0; at < bytes.size(); ++at) {
        const unsigned byte = byteat(bytes, at);
        appendcodepoint(text, byte >= 0x80 && byte < 0xA0 ? windows1252.at(byte - 0x80) : byte);
    }
    return text;
}

std::size_t charactercount(std::string_view bytes)
{
    if (!isutf8(bytes)) {
        return bytes.size();
    }
    std::size_t count = 0;
    for (std::size_t at = 0; at < bytes.size(); at += sequencelength(bytes, at)) {
        ++count;
    }
    return count;
}

std::string numbertext(std::int64_t number)
{
    return std::to_string(number);
}

void addnumber(std::string& text, std::int64_t number)
{
    std::array<char, std::numeric_limits<std::int64_t>::digits10 + 2> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    text.append(digits.data(), result.ptr);
}

std::string spacednumber(std::int64_t number)
{
    return (number < 0 ? "" : " ") + numbertext(number);
}

std::optional<std::int64_t> wholenumber(std::string_view text)
{
    const std::size_t digits = !text.empty() && issign(text.front()) ? 1 : 0;
    if (digits == text.size() || skipdigits(text, digits) != text.size()) {
        return std::nullopt;
    }
    if (text.front() == '+') {
        text.remove_prefix(1); // from_chars reads no plus sign
    }
    std::int64_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec == std::errc::result_out_of_range) {
        using Limits = std::numeric_limits<std::int64_t>;
        return text.front() == '-' ? Limits::min() : Limits::max();
    }
    return number;
}

std::int64_t leadingnumber(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos) {
        return 0;
    }
    text.remove_prefix(start);
    const std::size_t end = skipdigits(text, issign(text.front()) ? 1 : 0);
    return wholenumber(text.substr(0, end)).value_or(0);
}

namespace {

// The whole text as a number, and a number as text with 15 digits. A number outside the range of a double is not read.
#ifdef __cpp_lib_to_chars
bool readnumber(const std::string& text, double& value)
{
    return std::from_chars(text.data(), text.data() + text.size(), value).ec != std::errc::result_out_of_range;
}

std::string writtennumber(double number)
{
    std::array<char, 64> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, 15);
    return {buffer.data(), result.ptr};
}
#else
// For libraries that have these for whole numbers alone. They obey the locale, which only Qt sets.
bool readnumber(const std::string& text, double& value)
{
    value = std::strtod(text.c_str(), nullptr);
    return std::isfinite(value) && (value != 0 || text.find_first_of("123456789") >= text.find('e'));
}

std::string writtennumber(double number)
{
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.15g", number);
    return buffer.data();
}
#endif

} // namespace

double textvalue(std::string_view text)
{
    std::string kept = withoutblanks(text);
    if (kept.size() > 1 && kept[0] == '&') {
        const char kind = kept[1];
        const bool hexadecimal = kind == 'H' || kind == 'h';
        const bool octal = kind == 'O' || kind == 'o';
        return hexadecimal || octal ? basedvalue(std::string_view(kept).substr(2), hexadecimal ? 16 : 8) : 0;
    }
    const std::size_t first = !kept.empty() && issign(kept[0]) ? 1 : 0;
    std::size_t end = skipdigits(kept, first);
    std::size_t digits = end - first;
    if (end < kept.size() && kept[end] == '.') {
        const std::size_t fraction = end + 1;
        end = skipdigits(kept, fraction);
        digits += end - fraction;
    }
    if (digits == 0) {
        return 0;
    }
    if (end < kept.size() && std::string_view("eEdD").find(kept[end]) != std::string_view::npos) {
        const std::size_t exponent = end + 1 + (end + 1 < kept.size() && issign(kept[end + 1]) ? 1 : 0);
        const std::size_t after = skipdigits(kept, exponent);
        if (after > exponent) {
            kept[end] = 'e';
            end = after;
        }
    }
    kept.resize(end);
    double value = 0;
    if (!readnumber(kept[0] == '+' ? kept.substr(1) : kept, value)) {
        // Too small a number has a negative exponent or nothing but zeros before its point.
        const std::string_view number = std::string_view(kept).substr(first, end - first);
        const bool small =
            number.find("e-") != std::string_view::npos ||
            (number.find('e') == std::string_view::npos && number.find_first_not_of('0') == number.find('.'));
        const double huge = std::numeric_limits<double>::max();
        return small ? 0 : kept[0] == '-' ? -huge : huge;
    }
    return value;
}

std::string decimaltext(double number)
{
    return writtennumber(number == 0 ? 0.0 : number);
}

std::string_view withoutmark(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text.starts_with(mark)) {
        text.remove_prefix(mark.size());
    }
    return text;
}

} // namespace brindor
