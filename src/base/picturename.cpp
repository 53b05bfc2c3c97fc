#include "base/picturename.h"

#include "base/files.h"
#include "base/playerfolder.h"
#include "base/text.h"

#include <algorithm>
#include <array>

namespace brindor {

namespace {

constexpr std::array<std::string_view, 5> endings = {"png", "jpg", "jpeg", "bmp", "gif"};
constexpr std::array<std::string_view, 4> beginnings = {"\x89PNG\r\n\x1A\n", "\xFF\xD8\xFF", "BM", "GIF8"};

} // namespace

bool liesin(const std::string& path, const std::string& folder)
{
    return path.starts_with(folder == "/" ? folder : folder + '/');
}

bool endsin(std::string_view name, std::string_view ending)
{
    if (name.size() <= ending.size() || name[name.size() - ending.size() - 1] != '.') {
        return false;
    }
    name.remove_prefix(name.size() - ending.size());
    return std::equal(name.begin(), name.end(), ending.begin(), [](char a, char b) { return lowercase(a) == b; });
}

std::string relativenamefault(std::string_view name)
{
    if (name.empty() || name.front() == '/') {
        return "it must lie in the folder or below it, as ships/whydah.png";
    }
    if (name.find('\\') != std::string_view::npos || std::any_of(name.begin(), name.end(), iscontrol)) {
        return "its parts must be joined by /, as ships/whydah.png";
    }
    for (std::string_view rest = name;;) {
        const std::size_t end = std::min(rest.find('/'), rest.size());
        if (end == 0 || rest.front() == '.') {
            return "no part of it may be empty or begin with a dot";
        }
        if (end == rest.size()) {
            return {};
        }
        rest.remove_prefix(end + 1);
    }
}

std::string picturenamefault(std::string_view name)
{
    const bool known =
        std::any_of(endings.begin(), endings.end(), [name](std::string_view ending) { return endsin(name, ending); });
    const std::string fault = relativenamefault(name);
    return fault.empty() && !known ? "it must end in png, jpg, jpeg, bmp or gif" : fault;
}

Result<std::string> picturefile(const std::string& folder, const std::string& name)
{
    if (std::string fault = picturenamefault(name); !fault.empty()) {
        return {std::nullopt, std::move(fault)};
    }
    const Result<std::string> home = realpathof(folder.empty() ? "." : folder);
    if (!home) {
        return home;
    }
    const std::string named = (folder.empty() ? "" : folder + '/') + name;
    const Result<std::string> real = realpathof(named);
    if (!real) {
        return real;
    }
    if (!liesin(*real.value, *home.value) && (sharedfolder.empty() || !liesin(*real.value, sharedfolder))) {
        return {std::nullopt, "a link leads out of the folder"};
    }
    return {named, {}};
}

bool ispicture(std::string_view content)
{
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [content](std::string_view beginning) { return content.starts_with(beginning); });
}

} // namespace brindor
