#include "authoring/values.h"

#include "authoring/words.h"
#include "base/numbers.h"
#include "base/text.h"
#include "timeline/timeline.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <optional>
#include <unicode/regex.h>
#include <unicode/unistr.h>
#include <utility>
#include <vector>

namespace brindor::authoring {

namespace {

struct Kind {
    std::string_view word;
    DateKind kind;
};

constexpr std::array<Kind, 12> kinds = {{{"", known},
                                         {"known", known},
                                         {"ca.", approx},
                                         {"ca", approx},
                                         {"c.", approx},
                                         {"c", approx},
                                         {"circa", approx},
                                         {"about", approx},
                                         {"approx.", approx},
                                         {"reign", reign},
                                         {"(reign)", reign},
                                         {"reigned", reign}}};

struct Sign {
    std::string_view character;
    char plain;
};

constexpr std::array<Sign, 8> signs = {{{"\u00A0", ' '}, // no-break
                                        {"\u2007", ' '}, // as wide as a figure
                                        {"\u2009", ' '}, // thin
                                        {"\u202F", ' '}, // narrow and no-break
                                        {"\u2212", '-'}, // minus
                                        {"\u2010", '-'},
                                        {"\u2011", '-'},
                                        {"\u2013", '-'}}};

// What most often stands in the column of a year and is none, with what to write.
struct Slip {
    const char* form;
    const char* advice; // $1: the year found in it
};

constexpr std::array<Slip, 6> slips = {{
    {R"(.*\d\s*-\s*\d+[^\d].*-.*)", "write the year alone, as 1832"}, // 1832-05-12
    {R"((\d{1,5})\s*(?:-|to|bis)\s*\d{1,5})", "write the year alone, $1; the last year goes into date2"},
    {R"(\d{1,2}[./]\d{1,2}[./](\d{1,5}).*)", "write the year alone, $1"},
    {R"((\d{1,3})[,.'](\d{3}))", "write the year without a separator, $1$2"},
    {R"((?:ca?\.?|circa|about|reign)\s*(\d{1,5}).*)",
     "write the year alone, $1; the word goes into the column kind1 or kind2"},
    {R"(.*?(\d{3,4}).*)", "write the year alone, as $1"},
}};

// "44 BC" with the digits and the words on both sides of them.
constexpr const char* yearform = R"((ad|a\.d\.)?\s*(-?)\s*(\+?\d+)\s*(bce?|b\.c\.(?:e\.)?|ad|a\.d\.|ce|c\.e\.)?)";

// The whole text and the groups of a form that matches it; nothing where it does not.
std::vector<std::string> matched(const char* form, const std::string& text)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::RegexMatcher matcher(icu::UnicodeString::fromUTF8(form), 0, status);
    const icu::UnicodeString characters = icu::UnicodeString::fromUTF8(text);
    std::vector<std::string> groups;
    if (U_SUCCESS(status) && matcher.reset(characters).matches(status)) {
        for (int32_t i = 0; i <= matcher.groupCount(); ++i) {
            std::string group;
            groups.push_back(matcher.group(i, status).toUTF8String(group));
        }
    }
    return groups;
}

std::string adviceon(const std::string& text)
{
    for (const Slip& slip : slips) {
        const std::vector<std::string> groups = matched(slip.form, text);
        std::string advice = groups.empty() ? "" : slip.advice;
        for (std::size_t i = 1; i < groups.size(); ++i) {
            const std::string mark = '$' + numbertext(static_cast<std::int64_t>(i));
            if (const std::size_t at = advice.find(mark); at != std::string::npos) {
                advice.replace(at, mark.size(), groups[i]);
            }
        }
        if (!advice.empty()) {
            return advice;
        }
    }
    return "write a whole number, as 1832, -44 or 44 BC";
}

} // namespace

std::string plain(std::string_view field)
{
    std::string text(field);
    for (const Sign& sign : signs) {
        for (std::size_t at = text.find(sign.character); at != std::string::npos; at = text.find(sign.character, at)) {
            text.replace(at, sign.character.size(), 1, sign.plain);
        }
    }
    const std::size_t start = text.find_first_not_of(" \t");
    return start == std::string::npos ? std::string() : text.substr(start, text.find_last_not_of(" \t") + 1 - start);
}

Result<std::int16_t> yearof(std::string_view field)
{
    constexpr std::size_t longest = 100; // of what could be a year
    const std::string text = folded(plain(field.substr(0, longest)));
    std::optional<std::int64_t> number = wholenumber(text);
    if (!number) {
        const std::vector<std::string> found = matched(yearform, text);
        const bool signedtoo = found.size() == 5 && !found[2].empty();
        const auto signs = found.size() == 5 ? !found[1].empty() + !found[4].empty() + (signedtoo ? 1 : 0) : 2;
        if (signs > 1) {
            return {std::nullopt, inquotes(field.substr(0, longest)) + " is no year; " + adviceon(text)};
        }
        number = wholenumber(found[3]).value_or(0) * (signedtoo || found[4].starts_with('b') ? -1 : 1);
    }
    const std::optional<std::int16_t> year = toint16(*number);
    if (!year) {
        return {std::nullopt, inquotes(field) + ' ' + std::string(outside16)};
    }
    return {*year, {}};
}

Result<std::int16_t> datekindof(std::string_view field)
{
    const std::string word = folded(plain(field));
    const auto* found = std::find_if(kinds.begin(), kinds.end(), [&word](const Kind& k) { return k.word == word; });
    if (found == kinds.end()) {
        return {std::nullopt, inquotes(field) + " is no kind of date; leave it empty or write ca. or reign"};
    }
    return {std::int16_t{found->kind}, {}};
}

Result<double> degreesof(std::string_view field, double limit)
{
    std::string text = plain(field);
    if (std::count(text.begin(), text.end(), ',') == 1 && text.find('.') == std::string::npos) {
        text[text.find(',')] = '.';
    }
    double number = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    if (result.ec != std::errc() || result.ptr != end || !(number >= -limit && number <= limit)) {
        return {std::nullopt, inquotes(field) + " is no number of degrees from " + decimaltext(-limit) + " to " +
                                  decimaltext(limit) + "; write it as 50.91, south and west with a minus sign"};
    }
    return {number, {}};
}

} // namespace brindor::authoring
