#include "base/folders.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace brindor {

namespace fs = std::filesystem;

namespace {

std::string reasonof(int error)
{
    return std::generic_category().message(error);
}

} // namespace

Result<TemporaryFolder> TemporaryFolder::make()
{
    std::error_code error;
    std::string path = (fs::temp_directory_path(error) / "brindor-XXXXXX").string();
    if (error || ::mkdtemp(path.data()) == nullptr) {
        return {std::nullopt, error ? error.message() : reasonof(errno)};
    }
    return {TemporaryFolder(std::move(path)), {}};
}

TemporaryFolder::TemporaryFolder(TemporaryFolder&& other) noexcept : path_(std::exchange(other.path_, {})) {}

TemporaryFolder::~TemporaryFolder()
{
    if (!path_.empty()) {
        std::error_code ignored; // what is left then lies in the system's folder for such files
        fs::remove_all(path_, ignored);
    }
}

bool isfolder(const std::string& path)
{
    std::error_code ignored;
    return fs::is_directory(path, ignored);
}

std::vector<std::string> filesbelow(const std::string& folder)
{
    std::vector<std::string> files;
    std::error_code error;
    for (fs::recursive_directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        std::error_code ignored;
        if (at->is_regular_file(ignored) && !at->is_symlink(ignored)) {
            files.push_back(at->path().lexically_relative(folder).generic_string());
        }
    }
    std::sort(files.begin(), files.end());
    return files;
}

Result<Done> copyfile(const std::string& from, const std::string& into)
{
    std::error_code error;
    fs::copy_file(from, into, error);
    return error ? Result<Done>{std::nullopt, error.message()} : Result<Done>{Done{}, {}};
}

Result<Done> linkfolder(const std::string& folder, const std::string& link)
{
    std::error_code error;
    fs::create_directory_symlink(fs::absolute(folder, error), link, error);
    return error ? Result<Done>{std::nullopt, error.message()} : Result<Done>{Done{}, {}};
}

std::string programfolder()
{
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path().string();
}

Result<int> runprogram(const std::vector<std::string>& command)
{
    std::vector<std::string> words = command;
    std::vector<char*> pointers;
    for (std::string& word : words) {
        pointers.push_back(word.data());
    }
    pointers.push_back(nullptr);
    // Ctrl+C is for the program that runs; what waits for it lives on and tidies up.
    posix_spawnattr_t attributes;
    sigset_t keyboard;
    ::posix_spawnattr_init(&attributes);
    ::sigemptyset(&keyboard);
    ::sigaddset(&keyboard, SIGINT);
    ::posix_spawnattr_setsigdefault(&attributes, &keyboard);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    const auto before = ::signal(SIGINT, SIG_IGN);
    pid_t child = 0;
    const int error = ::posix_spawn(&child, pointers.front(), nullptr, &attributes, pointers.data(), ::environ);
    ::posix_spawnattr_destroy(&attributes);
    Result<int> result{std::nullopt, reasonof(error)};
    int status = 0;
    if (error == 0 && ::waitpid(child, &status, 0) == child) {
        result = {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), {}};
    }
    ::signal(SIGINT, before);
    return result;
}

} // namespace brindor
