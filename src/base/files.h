#pragma once

#include "base/result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// The one place where files are opened, read, written, renamed and closed. Names are relative to the current
// directory. Only regular files are opened: a folder, a device or a pipe gives a failure at once and blocks nothing.
// Every failure's reason is the system's own text, as in "No such file or directory".
namespace brindor {

inline constexpr std::string_view notregularreason = "Not a regular file";
inline constexpr std::string_view toolargereason = "File too large";

// An open file; closes itself when it goes out of scope.
class OpenFile {
public:
    explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
    OpenFile(OpenFile&& other) noexcept;
    OpenFile& operator=(OpenFile&&) = delete;
    OpenFile(const OpenFile&) = delete;
    ~OpenFile();

    int descriptor() const { return descriptor_; }
    int release(); // hands the descriptor out; the caller closes it

private:
    int descriptor_;
};

Result<OpenFile> openforreading(const std::string& path);

// Reads up to the size of `into`; the value is the number of bytes read, 0 at the end of the file.
Result<std::size_t> readsome(const OpenFile& file, std::span<char> into);

// The whole content of a file; fails where it holds more than `limit` bytes.
Result<std::string> readwhole(const std::string& path, std::size_t limit);

// Appends `text` to the file, which is made where it is missing, and closes it.
Result<Done> appendtofile(const std::string& path, std::string_view text);

// Makes the file or empties it, and closes it.
Result<Done> emptyfile(const std::string& path);

// Puts `content` in the file's place in one step: a temporary file beside it, flushed to the disk, then renamed.
// On a failure the old file stands untouched and no temporary file is left; one that a kill left is taken over.
Result<Done> replacefile(const std::string& path, std::string_view content);

bool isregularfile(const std::string& path);

// The path without links, from the root. Fails where there is nothing at the path.
Result<std::string> realpathof(const std::string& path);

// Makes a folder and those above it that are missing. Nothing to do where it stands, and for an empty path.
Result<Done> makefolder(const std::string& path);

Result<Done> enterdirectory(const std::string& path);

// The tests make file calls fail on purpose. Calls are counted from 1; call number `failat` fails, and all that
// follow it too where `forever` is set. 0 lets every call through. What was done is counted beside it: files opened for
// reading or writing, and bytes read. Set by tests only.
struct FaultPlan {
    std::int64_t failat = 0;
    bool forever = false;
    std::int64_t calls = 0;
    std::int64_t opened = 0;
    std::int64_t bytesread = 0;
};
extern FaultPlan faultplan;

} // namespace brindor
