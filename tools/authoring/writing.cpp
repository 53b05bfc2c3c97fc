#include "authoring/writing.h"

#include "authoring/folder.h"
#include "base/files.h"
#include "base/picturename.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

namespace brindor::authoring {

namespace {

constexpr std::size_t largestfile = std::size_t{1} << 30; // bytes; of one that stands at a target

bool istimeline(std::string_view content)
{
    return !content.empty() && content.front() >= '0' && content.front() <= '9'; // the number of people
}

bool isarchive(std::string_view content)
{
    return content.starts_with("PK");
}

bool isdrawing(std::string_view content)
{
    return content.starts_with('<');
}

bool isanything(std::string_view)
{
    return true;
}

// What the tools write, by the ending of its name.
struct Sort {
    std::string_view ending;
    bool (*is)(std::string_view content);
    std::string_view what;
};

constexpr std::array<Sort, 9> sorts = {{{"bd3", istimeline, "timeline"},
                                        {"csv", isanything, "spreadsheet"},
                                        {"zip", isarchive, "zip file"},
                                        {"png", ispicture, "picture"},
                                        {"jpg", ispicture, "picture"},
                                        {"jpeg", ispicture, "picture"},
                                        {"bmp", ispicture, "picture"},
                                        {"gif", ispicture, "picture"},
                                        {"svg", isdrawing, "drawing"}}};

// Whether the folder of a file, as far as it stands, lies in `folder` when all links are followed.
bool staysin(const std::string& folder, const std::string& name)
{
    const Result<std::string> home = realpathof(folder.empty() ? "." : folder);
    if (!home) {
        return true; // nothing stands there yet
    }
    for (std::string part = folderof(name); !part.empty(); part = folderof(part)) {
        if (const Result<std::string> real = realpathof(inside(folder, part))) {
            return liesin(*real.value, *home.value);
        }
    }
    return true;
}

// Why the content can't be put there; empty where it can.
std::string refusal(const std::string& folder, const std::string& name, const std::string& content, bool overwrite)
{
    if (std::string fault = relativenamefault(name); !fault.empty()) {
        return "is no name for a file to write; " + fault;
    }
    const auto* sort =
        std::find_if(sorts.begin(), sorts.end(), [&name](const Sort& s) { return endsin(name, s.ending); });
    if (sort == sorts.end()) {
        return "is not written; the tools write timelines (.bd3), spreadsheets (.csv), pictures and .zip files only";
    }
    const std::string what(sort->what);
    if (!sort->is(content)) {
        return "is not written, since the content is no " + what;
    }
    if (!staysin(folder, name)) {
        return "is not written, since a link leads out of " + (folder.empty() ? "the folder" : folder);
    }
    const Result<std::string> there = readwhole(inside(folder, name), largestfile);
    if (!there) {
        return realpathof(inside(folder, name)) ? "stands there already and is not replaced: " + there.reason : "";
    }
    if (*there.value == content) {
        return {};
    }
    if (!sort->is(*there.value)) {
        return "stands there already and is no " + what + ", so it is not replaced";
    }
    return overwrite
               ? ""
               : "stands there already and is another " + what + "; name another place, or replace it with --overwrite";
}

} // namespace

void Writing::add(const std::string& folder, const std::string& name, std::string content)
{
    const std::string path = inside(folder, name);
    std::string why = refusal(folder, name, content, overwrite_);
    const auto taken = taken_.find(path);
    if (why.empty() && taken != taken_.end() && files_[taken->second].content != content) {
        why = "is not written, since two different files have this name";
    }
    if (!why.empty()) {
        findings_.push_back({Severity::error, path, 0, std::move(why)});
    } else if (taken == taken_.end()) {
        taken_.emplace(path, files_.size());
        files_.push_back({path, std::move(content)});
    }
}

void Writing::add(const std::string& path, std::string content)
{
    add(folderof(path), path.substr(path.find_last_of('/') + 1), std::move(content));
}

bool Writing::commit()
{
    if (haserrors(findings_)) {
        return false;
    }
    for (const File& file : files_) {
        if (readwhole(file.path, file.content.size()).value == file.content) {
            continue;
        }
        Result<Done> written = makefolder(folderof(file.path));
        if (written) {
            written = replacefile(file.path, file.content);
        }
        if (!written) {
            findings_.push_back({Severity::error, file.path, 0, "cannot be written: " + written.reason});
            return false;
        }
    }
    return true;
}

std::string folderof(const std::string& path)
{
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string::npos ? std::string() : path.substr(0, std::max<std::size_t>(slash, 1));
}

} // namespace brindor::authoring
