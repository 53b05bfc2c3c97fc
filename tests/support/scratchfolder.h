#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace brindor::tests {

// A fresh folder that is the current directory as long as this lives, and is removed with it.
class ScratchFolder {
public:
    ScratchFolder() : before_(std::filesystem::current_path())
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "brindor-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) {
            throw std::runtime_error("no scratch folder");
        }
        path_ = pattern;
        std::filesystem::current_path(path_);
    }
    ~ScratchFolder()
    {
        std::filesystem::current_path(before_);
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path before_;
    std::filesystem::path path_;
};

inline void writefile(const std::filesystem::path& file, std::string_view content)
{
    std::ofstream out(file, std::ios::binary);
    if (!(out << content).flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

inline std::string contentof(const std::filesystem::path& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

} // namespace brindor::tests
