// The rule for names of pictures: whatever a stranger's file names, no path leads out of the folder, and every file
// that is opened is one whose name says that it is a picture.

#include "base/picturename.h"
#include "ground.h"

#include <filesystem>

using namespace brindor;
using namespace brindor::fuzz;

namespace {

// own/ is the folder; what lies beside it nobody may reach, by a name or by a link.
void layout()
{
    namespace fs = std::filesystem;
    preparedground();
    if (fs::exists("own")) {
        return;
    }
    fs::create_directories("own/d.png");
    fs::create_directories("beside");
    for (const char* file : {"own/a.png", "own/d.png/b.gif", "own/a", "beside/a.png", "a.png"}) {
        writeinput(file, "BM");
    }
    fs::create_symlink("../beside", "own/l");
    fs::create_symlink("../beside/a.png", "own/l.png");
    fs::create_symlink("a.png", "own/s.png");
    fs::create_symlink("d.png/../..", "own/d.png/l");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    layout();
    const std::string name{textof(data, size)};
    const Result<std::string> opened = picturefile("own", name);
    require(!opened || picturenamefault(name).empty());
    if (picturenamefault(name).empty()) {
        const std::filesystem::path path(name);
        require(path.is_relative() && path.lexically_normal() == path && path.has_extension());
    }
    if (opened) {
        static const std::string home = std::filesystem::canonical("own").string() + '/';
        require(std::filesystem::canonical(*opened.value).string().starts_with(home));
    }
    return 0;
}
