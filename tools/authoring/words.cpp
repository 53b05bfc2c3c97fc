#include "authoring/words.h"

#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <map>
#include <memory>
#include <numeric>
#include <unicode/translit.h>
#include <unicode/unistr.h>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::size_t fewestletters = 4;
constexpr std::size_t longestslug = 80;

constexpr std::array<std::string_view, 30> commonwords = {
    "after",    "battle", "council",    "duke",  "dynasty", "emperor", "empire", "empress", "first", "foundation",
    "founding", "from",   "great",      "into",  "king",    "kingdom", "over",   "peace",   "pope",  "prince",
    "princess", "queen",  "revolution", "saint", "second",  "siege",   "third",  "treaty",  "with",  "year"};

// A text put through ICU's rules; as it is where the library lacks its data.
std::string put(std::string_view text, const char16_t* rules)
{
    static std::map<const char16_t*, std::unique_ptr<icu::Transliterator>> made;
    std::unique_ptr<icu::Transliterator>& through = made[rules];
    if (!through) {
        UErrorCode status = U_ZERO_ERROR;
        UParseError place;
        through.reset(icu::Transliterator::createFromRules("", rules, UTRANS_FORWARD, place, status));
    }
    icu::UnicodeString characters = icu::UnicodeString::fromUTF8({text.data(), static_cast<int32_t>(text.size())});
    if (through) {
        through->transliterate(characters);
    }
    std::string result;
    return characters.toUTF8String(result);
}

// Signs for letters that Latin has not are dropped, and so are accents.
constexpr const char16_t* folding = u":: NFD; :: [[:M:] ʿ ʾ ʼ ʻ ʹ] Remove; :: NFC; :: Latin-ASCII; :: Lower;";
constexpr const char16_t* tolatin = u":: Any-Latin;";

// What is counted and has no plural with an s, or a short one.
constexpr std::array<std::string_view, 17> measures = {"men",  "women", "people", "children", "feet",  "horse",
                                                       "foot", "sheep", "oxen",   "cattle",   "km",    "metres",
                                                       "tons", "guns",  "sail",   "percent",  "cities"};

bool isalnum(char c)
{
    return isdigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isletter(char c)
{
    return (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

// Whether what follows a number says what it counts: a plural or a measure.
bool countsthings(std::string_view behind)
{
    if (behind.size() > 1 && behind[0] == '-' && isletter(behind[1])) {
        return true;
    }
    if (behind.empty() || behind[0] != ' ' || behind.size() < 2 || !isletter(behind[1])) {
        return false;
    }
    const auto end = std::find_if_not(behind.begin() + 1, behind.end(), isletter);
    const std::string word(behind.begin() + 1, end);
    if (std::find(measures.begin(), measures.end(), word) != measures.end()) {
        return true;
    }
    return word.size() > 4 && word.ends_with('s');
}

bool sameword(const std::string& a, const std::string& b)
{
    return a == b || a + 's' == b || a == b + 's';
}

} // namespace

std::string folded(std::string_view text)
{
    std::string result;
    if (std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; })) {
        std::transform(text.begin(), text.end(), std::back_inserter(result), lowercase);
        return result;
    }
    return put(text, folding);
}

std::size_t misspellings(std::string_view a, std::string_view b)
{
    // Distances between the beginnings of both: of the last row and the two before it.
    std::vector<std::size_t> before(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::vector<std::size_t> row(b.size() + 1, i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            row[j] = std::min({row[j - 1] + 1, last[j] + 1, last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1)});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
                row[j] = std::min(row[j], before[j - 2] + 1);
            }
        }
        before = std::exchange(last, std::move(row));
    }
    return last.back();
}

bool listedbefore(const std::string& a, const std::string& b)
{
    return std::pair(folded(a), a) < std::pair(folded(b), b);
}

std::vector<std::string> wordsof(std::string_view text)
{
    std::vector<std::string> words;
    const std::string plain = folded(text);
    for (auto at = plain.begin(); at != plain.end();) {
        const auto start = std::find_if(at, plain.end(), isletter);
        at = std::find_if_not(start, plain.end(), isletter);
        if (start != at) {
            words.emplace_back(start, at);
        }
    }
    return words;
}

bool holdswords(const std::vector<std::string>& whole, const std::vector<std::string>& part)
{
    return !part.empty() && std::search(whole.begin(), whole.end(), part.begin(), part.end(), sameword) != whole.end();
}

std::string sharedword(std::string_view name, std::string_view text)
{
    const std::vector<std::string> held = wordsof(text);
    for (const std::string& word : wordsof(name)) {
        const bool common = std::find(commonwords.begin(), commonwords.end(), word) != commonwords.end();
        if (common || charactercount(word) < fewestletters) {
            continue;
        }
        if (std::any_of(held.begin(), held.end(),
                        [&word](const std::string& other) { return sameword(word, other); })) {
            return word;
        }
    }
    return {};
}

// "1,000" is a number of things, not a year, and so is "500 pounds" or "300-mile".
std::string yearin(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        if (!isdigit(text[at])) {
            ++at;
            continue;
        }
        const std::size_t start = at;
        while (at < text.size() && (isdigit(text[at]) || ((text[at] == ',' || text[at] == '.') &&
                                                          at + 1 < text.size() && isdigit(text[at + 1])))) {
            ++at;
        }
        const std::string_view number = text.substr(start, at - start);
        const bool whole =
            number.find_first_of(",.") == std::string_view::npos && (start == 0 || !isalnum(text[start - 1]));
        if (whole && (number.size() == 3 || number.size() == 4) && !countsthings(text.substr(at))) {
            return std::string(number);
        }
    }
    return {};
}

std::string inquotes(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

std::string slug(std::string_view text)
{
    std::string result;
    for (const char c : folded(put(text, tolatin))) {
        if (isdigit(c) || (c >= 'a' && c <= 'z')) {
            result += c;
        } else if (c != '\'' && !result.empty() && result.back() != '-') {
            result += '-';
        }
    }
    result.resize(std::min(result.size(), longestslug));
    while (!result.empty() && result.back() == '-') {
        result.pop_back();
    }
    return result.empty() ? "item" : result;
}

} // namespace brindor::authoring
