#include "authoring/words.h"

#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <map>

namespace brindor::authoring {

namespace {

constexpr std::size_t fewestletters = 4;
constexpr std::size_t longestslug = 80;

struct Plain {
    std::string_view plain;
    std::string_view letters;
};

constexpr std::array<Plain, 32> plains = {{
    {"a", "ÀÁÂÃÄÅĀĂĄǍàáâãäåāăąǎẠạẢảẤấẦầẨẩẪẫẬậẮắẰằẲẳẴẵẶặ"},
    {"ae", "Ææ"},
    {"b", "Ḇḇ"},
    {"c", "ÇĆĈĊČçćĉċč"},
    {"d", "ĎĐÐďđðḌḍḎḏ"},
    {"e", "ÈÉÊËĒĔĖĘĚèéêëēĕėęěẸẹẺẻẼẽẾếỀềỂểỄễỆệ"},
    {"g", "ĜĞĠĢǦĝğġģǧ"},
    {"h", "ĤĦĥħḤḥḪḫ"},
    {"i", "ÌÍÎÏĨĪĬĮİìíîïĩīĭįıǏǐỈỉỊị"},
    {"j", "Ĵĵ"},
    {"k", "ĶķḲḳḴḵ"},
    {"l", "ĹĻĽĿŁĺļľŀłḷ"},
    {"m", "Ṃṃ"},
    {"n", "ÑŃŅŇÑñńņňṄṅṆṇ"},
    {"o", "ÒÓÔÕÖØŌŎŐòóôõöøōŏőǑǒƠơỌọỎỏỐốỒồỔổỖỗỘộỚớỜờỞởỠỡỢợ"},
    {"oe", "Œœ"},
    {"r", "ŔŖŘŕŗřṚṛ"},
    {"s", "ŚŜŞŠȘśŝşšșṢṣ"},
    {"ss", "ß"},
    {"t", "ŢŤŦȚţťŧțṬṭ"},
    {"th", "Þþ"},
    {"u", "ÙÚÛÜŨŪŬŮŰŲùúûüũūŭůűųǓǔƯưỤụỦủỨứỪừỬửỮữỰự"},
    {"v", "Ṿṿ"},
    {"w", "Ŵŵ"},
    {"y", "ÝŶŸýŷÿỲỳỴỵỶỷỸỹ"},
    {"z", "ŹŻŽźżžẒẓ"},
    {"", "ʿʾʼʻʹ"},
    {"'", "‘’"},
    {"-", "‐‑–—"},
    {"\"", "“”„«»"},
    {".", "…"},
    {" ", "\xC2\xA0"}, // the blank that does not break
}};

constexpr std::array<std::string_view, 30> commonwords = {
    "after",    "battle", "council",    "duke",  "dynasty", "emperor", "empire", "empress", "first", "foundation",
    "founding", "from",   "great",      "into",  "king",    "kingdom", "over",   "peace",   "pope",  "prince",
    "princess", "queen",  "revolution", "saint", "second",  "siege",   "third",  "treaty",  "with",  "year"};

// The characters of a UTF-8 text, one by one.
template <class Act>
void eachcharacter(std::string_view text, Act act)
{
    const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
    for (std::size_t at = 0; at < text.size();) {
        std::size_t end = at + 1;
        while (end < text.size() && continues(text[end])) {
            ++end;
        }
        act(text.substr(at, end - at));
        at = end;
    }
}

const std::map<std::string_view, std::string_view>& plainforms()
{
    static const std::map<std::string_view, std::string_view> forms = [] {
        std::map<std::string_view, std::string_view> made;
        for (const Plain& row : plains) {
            eachcharacter(row.letters, [&](std::string_view letter) { made.emplace(letter, row.plain); });
        }
        return made;
    }();
    return forms;
}

// U+0300 to U+036F, which put an accent on the letter before them.
bool iscombining(std::string_view character)
{
    return character.size() == 2 && ((character[0] == '\xCC') || (character[0] == '\xCD' && character[1] <= '\xAF'));
}

bool isdigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isletter(char c)
{
    return (c >= 'a' && c <= 'z') || static_cast<unsigned char>(c) >= 0x80;
}

bool sameword(const std::string& a, const std::string& b)
{
    return a == b || a + 's' == b || a == b + 's';
}

} // namespace

std::string folded(std::string_view text)
{
    std::string result;
    eachcharacter(text, [&result](std::string_view character) {
        const char first = character.front();
        const auto plain = plainforms().find(character);
        if (plain != plainforms().end()) {
            result += plain->second;
        } else if (first >= 'A' && first <= 'Z') {
            result += "abcdefghijklmnopqrstuvwxyz"[first - 'A'];
        } else if (!iscombining(character)) {
            result += character;
        }
    });
    return result;
}

bool listedbefore(const std::string& a, const std::string& b)
{
    const std::string plaina = folded(a);
    const std::string plainb = folded(b);
    return plaina != plainb ? plaina < plainb : a < b;
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

bool holdswords(std::string_view whole, std::string_view part)
{
    const std::vector<std::string> words = wordsof(whole);
    const std::vector<std::string> wanted = wordsof(part);
    return !wanted.empty() &&
           std::search(words.begin(), words.end(), wanted.begin(), wanted.end(), sameword) != words.end();
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

// "1,000" is a number of things, not a year.
std::string yearin(std::string_view text)
{
    for (std::size_t at = 0; at < text.size();) {
        if (!isdigit(text[at])) {
            ++at;
            continue;
        }
        const std::size_t start = at;
        while (at < text.size() &&
               (isdigit(text[at]) || (text[at] == ',' && at + 1 < text.size() && isdigit(text[at + 1])))) {
            ++at;
        }
        const std::string_view number = text.substr(start, at - start);
        const bool whole = number.find(',') == std::string_view::npos;
        if (whole && (number.size() == 3 || number.size() == 4)) {
            return std::string(number);
        }
    }
    return {};
}

std::string slug(std::string_view text)
{
    std::string result;
    for (const char c : folded(text)) {
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
