#pragma once

#include "base/result.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What is done with whole folders and programs, beside the calls on single files in files.h. Every failure's reason is
// the system's own text.
namespace brindor {

// A fresh empty folder for the user alone; removed with all that is in it when it goes out of scope.
class TemporaryFolder {
public:
    static Result<TemporaryFolder> make();
    TemporaryFolder(TemporaryFolder&& other) noexcept;
    TemporaryFolder& operator=(TemporaryFolder&&) = delete;
    TemporaryFolder(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::string& path() const { return path_; }

private:
    explicit TemporaryFolder(std::string path) : path_(std::move(path)) {}

    std::string path_; // empty where another has taken it over
};

bool isfolder(const std::string& path);

// The regular files in a folder and below it, relative to it, in alphabetical order; links are not followed. Empty
// where there is no such folder.
std::vector<std::string> filesbelow(const std::string& folder);

// Copies a file with its permissions.
Result<Done> copyfile(const std::string& from, const std::string& into);

// Puts a link to a folder where `link` says.
Result<Done> linkfolder(const std::string& folder, const std::string& link);

// The folder of the running program, from the root; empty where the system does not tell it.
std::string programfolder();

// Runs a program to its end; the value is its exit status.
Result<int> runprogram(const std::vector<std::string>& command);

} // namespace brindor
