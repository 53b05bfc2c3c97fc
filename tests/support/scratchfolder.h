#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brindor::tests {

// A fresh folder that is the current directory as long as this lives, and is removed with it.
class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path before_;
    std::filesystem::path path_;
};

void writefile(const std::filesystem::path& file, std::string_view content);
std::string contentof(const std::filesystem::path& file);

} // namespace brindor::tests
