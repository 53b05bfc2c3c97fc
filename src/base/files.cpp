#include "base/files.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace brindor {

FaultPlan faultplan;

namespace {

// Counts a call and says whether the plan wants it to fail.
bool refused()
{
    ++faultplan.calls;
    const bool hit = faultplan.failat > 0 &&
                     (faultplan.forever ? faultplan.calls >= faultplan.failat : faultplan.calls == faultplan.failat);
    if (hit) {
        errno = EIO;
    }
    return hit;
}

std::string systemreason()
{
    return std::generic_category().message(errno);
}

template <class T>
Result<T> failed()
{
    return {std::nullopt, systemreason()};
}

Result<Done> done()
{
    return {Done{}, {}};
}

// A pipe or a device could block or act on being opened, so the kind is asked before and after the open.
Result<OpenFile> openregular(const std::string& path, int flags)
{
    struct stat status {};
    if (refused()) {
        return failed<OpenFile>();
    }
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        return {std::nullopt, std::string(notregularreason)};
    }
    const mode_t readableforall = 0666;
    OpenFile file(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, readableforall));
    if (file.descriptor() < 0) {
        return failed<OpenFile>();
    }
    if (::fstat(file.descriptor(), &status) != 0) {
        return failed<OpenFile>();
    }
    if (!S_ISREG(status.st_mode)) {
        return {std::nullopt, std::string(notregularreason)};
    }
    ++faultplan.opened;
    return {std::move(file), {}};
}

Result<Done> writeall(const OpenFile& file, std::string_view text)
{
    while (!text.empty()) {
        if (refused()) {
            return failed<Done>();
        }
        const ssize_t written = ::write(file.descriptor(), text.data(), text.size());
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written < 0) {
            return failed<Done>();
        }
        text.remove_prefix(static_cast<std::size_t>(written));
    }
    return done();
}

Result<Done> closefile(OpenFile& file)
{
    const bool wanted = refused();
    const int result = ::close(file.release());
    if (wanted) {
        errno = EIO;
    }
    return wanted || result != 0 ? failed<Done>() : done();
}

Result<Done> writeandclose(const std::string& path, int flags, std::string_view text, bool flush)
{
    // Where a file may only grow to a limit, the write that goes beyond it fails; by default it would end the program.
    std::signal(SIGXFSZ, SIG_IGN);
    Result<OpenFile> file = openregular(path, flags);
    if (!file) {
        return {std::nullopt, file.reason};
    }
    if (Result<Done> written = writeall(*file.value, text); !written) {
        return written;
    }
    if (flush && (refused() || ::fsync(file.value->descriptor()) != 0)) {
        return failed<Done>();
    }
    return closefile(*file.value);
}

} // namespace

OpenFile::OpenFile(OpenFile&& other) noexcept : descriptor_(other.release()) {}

OpenFile::~OpenFile()
{
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

int OpenFile::release()
{
    const int descriptor = descriptor_;
    descriptor_ = -1;
    return descriptor;
}

Result<OpenFile> openforreading(const std::string& path)
{
    return openregular(path, O_RDONLY);
}

Result<std::size_t> readsome(const OpenFile& file, std::span<char> into)
{
    for (;;) {
        if (refused()) {
            return failed<std::size_t>();
        }
        const ssize_t got = ::read(file.descriptor(), into.data(), into.size());
        if (got >= 0) {
            faultplan.bytesread += got;
            return {static_cast<std::size_t>(got), {}};
        }
        if (errno != EINTR) {
            return failed<std::size_t>();
        }
    }
}

Result<std::string> readwhole(const std::string& path, std::size_t limit)
{
    constexpr std::size_t chunk = 65536;
    Result<OpenFile> file = openforreading(path);
    if (!file) {
        return {std::nullopt, file.reason};
    }
    std::string content;
    struct stat status {};
    if (::fstat(file.value->descriptor(), &status) == 0 && status.st_size >= 0) {
        content.reserve(std::min(static_cast<std::size_t>(status.st_size), limit) + chunk);
    }
    for (;;) {
        const std::size_t before = content.size();
        content.resize(before + chunk);
        const Result<std::size_t> got = readsome(*file.value, std::span(content).subspan(before));
        if (!got) {
            return {std::nullopt, got.reason};
        }
        content.resize(before + *got.value);
        if (content.size() > limit) {
            return {std::nullopt, std::string(toolargereason)};
        }
        if (*got.value == 0) {
            return {std::move(content), {}};
        }
    }
}

Result<Done> appendtofile(const std::string& path, std::string_view text)
{
    return writeandclose(path, O_WRONLY | O_CREAT | O_APPEND, text, false);
}

Result<Done> emptyfile(const std::string& path)
{
    return writeandclose(path, O_WRONLY | O_CREAT | O_TRUNC, {}, false);
}

Result<Done> replacefile(const std::string& path, std::string_view content)
{
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        return {std::nullopt, std::string(notregularreason)};
    }
    const std::string temporary = path + ".new";
    Result<Done> result = writeandclose(temporary, O_WRONLY | O_CREAT | O_TRUNC, content, true);
    if (result && (refused() || std::rename(temporary.c_str(), path.c_str()) != 0)) {
        result = failed<Done>();
    }
    if (!result) {
        ::unlink(temporary.c_str());
    }
    return result;
}

bool isregularfile(const std::string& path)
{
    struct stat status {};
    return !refused() && ::stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

Result<std::string> realpathof(const std::string& path)
{
    if (refused()) {
        return failed<std::string>();
    }
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    return error ? Result<std::string>{std::nullopt, error.message()} : Result<std::string>{real.string(), {}};
}

Result<Done> makefolder(const std::string& path)
{
    if (path.empty()) {
        return done();
    }
    if (refused()) {
        return failed<Done>();
    }
    std::error_code error;
    std::filesystem::create_directories(path, error);
    return error ? Result<Done>{std::nullopt, error.message()} : done();
}

Result<Done> enterdirectory(const std::string& path)
{
    return refused() || ::chdir(path.c_str()) != 0 ? failed<Done>() : done();
}

} // namespace brindor
