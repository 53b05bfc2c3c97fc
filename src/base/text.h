#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// Texts are held as the bytes that came. Bytes are read as UTF-8 where they are valid UTF-8, else as Windows-1252.
namespace brindor {

inline constexpr std::string_view crlf = "\r\n"; // the line break in every text that is shown

bool isutf8(std::string_view bytes);

// The text as UTF-8. The five bytes without a meaning in Windows-1252 become U+FFFD.
std::string toutf8(std::string_view bytes);

// Of ASCII alone: other bytes are no digits and no control characters, and have no lower case.
inline bool isdigit(char c)
{
    return c >= '0' && c <= '9';
}
inline bool iscontrol(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}
inline char lowercase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// The length of a text in characters.
std::size_t charactercount(std::string_view bytes);

// A whole number in decimal, "-" before a negative one; and the same, added to a text.
std::string numbertext(std::int64_t number);
void addnumber(std::string& text, std::int64_t number);

// The same with a blank where the minus sign would stand: " 53", "-53".
std::string spacednumber(std::int64_t number);

// The number that the whole text is: an optional sign and digits, nothing else. A number too large for 64 bits
// comes back as the nearer limit of 64 bits; a text of any other form gives nothing.
std::optional<std::int64_t> wholenumber(std::string_view text);

// The whole number with which a text begins, leading blanks and tabs skipped; 0 where there is none.
std::int64_t leadingnumber(std::string_view text);

// The number at the head of a text. Blanks, tabs and line feeds are skipped wherever they stand, also between
// digits. Then come an optional sign, digits with at most one decimal point, and an optional exponent, E or D with
// an optional sign. &H and &O at the head read a hexadecimal or an octal number. The scan stops at the first other
// character; a text with no number gives 0. The decimal point is a point, whatever the locale.
double textvalue(std::string_view text);

// A number in decimal with up to 15 significant digits and no trailing zeros: 12.50 becomes "12.5".
std::string decimaltext(double number);

// The text between two places in another. The view's own constructor is missing in some libraries.
inline std::string_view between(const char* begin, const char* end)
{
    return {begin, static_cast<std::size_t>(end - begin)};
}

// Values on a line stand between commas, blanks and tabs.
inline bool separates(char c)
{
    return c == ',' || c == ' ' || c == '\t';
}

// Takes the next value off a line. Empty where none is left.
inline std::string_view takevalue(std::string_view& line)
{
    const char* const lineend = line.data() + line.size();
    const char* const begin = std::find_if_not(line.data(), lineend, separates);
    const char* const end = std::find_if(begin, lineend, separates);
    line = between(end, lineend);
    return between(begin, end);
}

// The part of `text` behind a UTF-8 byte order mark, or all of it.
std::string_view withoutmark(std::string_view text);

} // namespace brindor
