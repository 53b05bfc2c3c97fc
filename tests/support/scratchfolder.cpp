#include "support/scratchfolder.h"

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace brindor::tests {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() : before_(fs::current_path())
{
    std::string pattern = (fs::temp_directory_path() / "brindor-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no scratch folder");
    }
    path_ = pattern;
    fs::current_path(path_);
}

ScratchFolder::~ScratchFolder()
{
    fs::current_path(before_);
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void writefile(const fs::path& file, std::string_view content)
{
    std::ofstream out(file, std::ios::binary);
    out << content;
    if (!out.flush()) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

std::string contentof(const fs::path& file)
{
    std::ifstream in(file, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

} // namespace brindor::tests
