#include "base/playerfolder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

namespace brindor {

namespace fs = std::filesystem;

std::string sharedfolder;

namespace {

constexpr const char* installedmark = "installed";

bool isprogram(const fs::directory_entry& entry)
{
    std::error_code ignored;
    return (entry.status(ignored).permissions() & fs::perms::owner_exec) != fs::perms::none;
}

bool leadsinto(const fs::path& link, const fs::path& folder)
{
    std::error_code ignored;
    const fs::path inside = fs::read_symlink(link, ignored).lexically_relative(folder);
    return !inside.empty() && *inside.begin() != "..";
}

// One folder with those below it. Stops at the first failure.
void linkfiles(const fs::path& from, const fs::path& into, std::error_code& error)
{
    fs::create_directories(into, error);
    for (fs::directory_iterator at(from, error), end; !error && at != end; at.increment(error)) {
        const fs::path target = into / at->path().filename();
        std::error_code ignored;
        const bool free = fs::symlink_status(target, ignored).type() == fs::file_type::not_found;
        if (at->is_directory(ignored)) {
            if (free || fs::is_directory(target, ignored)) {
                linkfiles(at->path(), target, error);
            }
        } else if (free && !isprogram(*at) && at->path().filename() != installedmark) {
            fs::create_symlink(at->path(), target, error);
        }
    }
}

void dropdeadlinks(const fs::path& from, const fs::path& into, std::error_code& error)
{
    std::vector<fs::path> dead;
    for (fs::recursive_directory_iterator at(into, error), end; !error && at != end; at.increment(error)) {
        std::error_code ignored;
        if (at->is_symlink(ignored) && !at->exists(ignored) && leadsinto(at->path(), from)) {
            dead.push_back(at->path());
        }
    }
    for (const fs::path& link : dead) {
        std::error_code ignored;
        fs::remove(link, ignored);
    }
}

std::string variable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

} // namespace

std::string playerfolder(const std::string& programfolder, std::string_view datahome, std::string_view home)
{
    std::error_code ignored;
    if (!fs::is_regular_file(fs::path(programfolder) / installedmark, ignored)) {
        return programfolder;
    }
    if (datahome.starts_with('/')) {
        return std::string(datahome) + "/brindor";
    }
    return home.starts_with('/') ? std::string(home) + "/.local/share/brindor" : std::string();
}

Result<Done> prepareplayerfolder(const std::string& programfolder, const std::string& folder)
{
    if (programfolder == folder) {
        return {Done{}, {}};
    }
    std::error_code error;
    const fs::path shared = fs::canonical(programfolder, error);
    if (!error) {
        linkfiles(shared, folder, error);
    }
    if (!error) {
        dropdeadlinks(shared, folder, error);
    }
    if (error) {
        return {std::nullopt, error.message()};
    }
    sharedfolder = shared.string();
    return {Done{}, {}};
}

Result<std::string> readyplayerfolder(const std::string& programfolder)
{
    std::string folder = playerfolder(programfolder, variable("XDG_DATA_HOME"), variable("HOME"));
    if (folder.empty()) {
        return {std::nullopt, "No folder for your game is known, since neither XDG_DATA_HOME nor HOME is set."};
    }
    if (const Result<Done> ready = prepareplayerfolder(programfolder, folder); !ready) {
        return {std::nullopt, "The folder of your game, " + folder + ", cannot be made ready: " + ready.reason + "."};
    }
    return {std::move(folder), {}};
}

} // namespace brindor
