#include "authoring/commandline.h"

#include "authoring/forms.h"
#include "authoring/words.h"
#include "authoring/writing.h"
#include "base/files.h"
#include "base/folders.h"
#include "base/picturename.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace brindor::authoring {

namespace {

constexpr std::array<std::string_view, 8> commands = {"new",  "check", "play",   "make",
                                                      "pack", "add",   "export", "fairness"};

constexpr std::array<std::string_view, 2> sheets = {peoplefile, eventsfile};

std::string joined(const std::vector<std::string>& words)
{
    std::string line = "timelinemaker";
    for (const std::string& word : words) {
        line += ' ' + inshell(word);
    }
    return line;
}

std::string misspelt(const std::vector<std::string>& words)
{
    constexpr std::size_t mostslips = 2;
    const std::string& word = words.front();
    if (word.empty() || word.front() == '-' || std::find(commands.begin(), commands.end(), word) != commands.end()) {
        return {};
    }
    std::vector<std::string> right = words;
    for (const std::string_view command : commands) {
        if (misspellings(folded(word), command) <= mostslips) {
            right.front() = command;
            return '"' + word + "\" is no command; did you mean: " + joined(right);
        }
    }
    std::string list;
    for (const std::string_view command : commands) {
        list += (list.empty() ? "" : ", ") + std::string(command);
    }
    return '"' + word + "\" is no command; the commands are " + list;
}

// Words that are one name: "my", "voyages" where a folder "my voyages" stands.
std::string tornapart(const std::vector<std::string>& words)
{
    for (std::size_t first = 1; first < words.size(); ++first) {
        std::string name = words[first];
        for (std::size_t last = first + 1; last < words.size() && !isfolder(words[first]); ++last) {
            name += ' ' + words[last];
            if (isfolder(name) || isregularfile(name)) {
                std::vector<std::string> right(words.begin(), words.begin() + static_cast<std::ptrdiff_t>(first));
                right.push_back(name);
                right.insert(right.end(), words.begin() + static_cast<std::ptrdiff_t>(last) + 1, words.end());
                return "a name with blanks needs quotes: " + joined(right);
            }
        }
    }
    return {};
}

// people.csv where its folder is meant.
std::string sheetforfolder(const std::vector<std::string>& words)
{
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::string name = words[i].substr(words[i].find_last_of('/') + 1);
        const bool target = words.front() == "check" || words.front() == "fairness" || i == 1;
        if (target && std::find(sheets.begin(), sheets.end(), folded(name)) != sheets.end()) {
            std::vector<std::string> right = words;
            right[i] = words[i] == name ? "." : folderof(words[i]);
            return "name the folder, which holds both files: " + joined(right);
        }
    }
    return {};
}

// "Modern" where "Modern.bd3" is meant.
std::string withoutending(const std::vector<std::string>& words)
{
    constexpr std::size_t place = 2; // make FOLDER FILE
    if (words.front() != "make" || words.size() <= place || words[place].starts_with('-') ||
        words[place].find('.') != std::string::npos) {
        return {};
    }
    std::vector<std::string> right = words;
    right[place] += isfolder(words[place]) ? "/Modern.bd3" : ".bd3";
    return "the name of a timeline ends in .bd3: " + joined(right);
}

} // namespace

std::string commandadvice(const std::vector<std::string>& words)
{
    if (words.empty()) {
        return {};
    }
    for (const auto& advice : {misspelt, tornapart, sheetforfolder, withoutending}) {
        if (std::string text = advice(words); !text.empty()) {
            return text;
        }
    }
    return {};
}

std::string checkadvice(const std::string& folder, const std::string& warnings, const std::string& notes)
{
    return warnings + ", " + notes + ": timelinemaker check " + inshell(folder);
}

std::string inshell(const std::string& name)
{
    const bool odd = name.empty() || name.find_first_of(" '\"$&()*;<>?[]`|~#!\\") != std::string::npos;
    return odd ? '"' + name + '"' : name;
}

} // namespace brindor::authoring
