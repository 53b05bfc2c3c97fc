#include "authoring/zipfile.h"

#include <cstdint>
#include <ctime>
#include <memory>
#include <utility>
#include <zip.h>

namespace brindor::authoring {

namespace {

constexpr std::int64_t mostfiles = 40000; // a timeline holds at most 32767 events
constexpr std::time_t sometime =
    946684800; // the first day of 2000, in every file, so that packing twice gives the same

struct Error {
    Error() { zip_error_init(&error); }
    ~Error() { zip_error_fini(&error); }
    Error(const Error&) = delete;
    Error& operator=(const Error&) = delete;
    std::string text() { return zip_error_strerror(&error); }

    zip_error_t error{};
};

struct Discard {
    void operator()(zip_t* archive) const { zip_discard(archive); }
    void operator()(zip_file_t* file) const { zip_fclose(file); }
    void operator()(zip_source_t* source) const { zip_source_free(source); }
};

using Archive = std::unique_ptr<zip_t, Discard>;
using Source = std::unique_ptr<zip_source_t, Discard>;

Result<ZipContent> failed(std::string reason)
{
    return {std::nullopt, std::move(reason)};
}

Result<std::string> unpacked(zip_t* archive, std::uint64_t index, std::size_t limit)
{
    const std::unique_ptr<zip_file_t, Discard> file(zip_fopen_index(archive, index, 0));
    if (!file) {
        return {std::nullopt, zip_strerror(archive)};
    }
    std::string content;
    for (;;) {
        constexpr std::size_t chunk = 65536;
        const std::size_t before = content.size();
        content.resize(before + chunk);
        const std::int64_t got = zip_fread(file.get(), content.data() + before, chunk);
        if (got < 0) {
            return {std::nullopt, "a file in it is damaged"};
        }
        content.resize(before + static_cast<std::size_t>(got));
        if (content.size() > limit) {
            return {std::nullopt, "it holds too much"};
        }
        if (got == 0) {
            return {std::move(content), {}};
        }
    }
}

} // namespace

Result<std::string> zipped(const ZipContent& files)
{
    Error error;
    Source whole(zip_source_buffer_create(nullptr, 0, 0, &error.error));
    if (!whole) {
        return {std::nullopt, error.text()};
    }
    zip_source_keep(whole.get()); // the archive takes one, the bytes are read from the other
    Archive archive(zip_open_from_source(whole.get(), ZIP_CREATE | ZIP_TRUNCATE, &error.error));
    if (!archive) {
        zip_source_free(whole.get());
        return {std::nullopt, error.text()};
    }
    for (const auto& [name, content] : files) {
        zip_source_t* source = zip_source_buffer(archive.get(), content.data(), content.size(), 0);
        const std::int64_t index =
            source == nullptr ? -1 : zip_file_add(archive.get(), name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
            return {std::nullopt, zip_strerror(archive.get())};
        }
        zip_file_set_mtime(archive.get(), static_cast<std::uint64_t>(index), sometime, 0);
    }
    if (zip_close(archive.get()) != 0) {
        return {std::nullopt, zip_strerror(archive.get())};
    }
    static_cast<void>(archive.release()); // closed
    zip_stat_t size{};
    std::string bytes;
    if (zip_source_stat(whole.get(), &size) != 0 || zip_source_open(whole.get()) != 0) {
        return {std::nullopt, zip_error_strerror(zip_source_error(whole.get()))};
    }
    bytes.resize(size.size);
    const std::int64_t got = zip_source_read(whole.get(), bytes.data(), bytes.size());
    zip_source_close(whole.get());
    if (got != static_cast<std::int64_t>(bytes.size())) {
        return {std::nullopt, "the file cannot be put together"};
    }
    return {std::move(bytes), {}};
}

Result<ZipContent> unzipped(std::string_view bytes, std::size_t limit)
{
    Error error;
    zip_source_t* source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error.error);
    const Archive archive(source == nullptr ? nullptr
                                            : zip_open_from_source(source, ZIP_RDONLY | ZIP_CHECKCONS, &error.error));
    if (!archive) {
        zip_source_free(source);
        return failed(error.text());
    }
    const std::int64_t count = zip_get_num_entries(archive.get(), 0);
    if (count > mostfiles) {
        return failed("it holds too many files");
    }
    ZipContent files;
    for (std::int64_t i = 0; i < count; ++i) {
        const auto index = static_cast<std::uint64_t>(i);
        const char* name = zip_get_name(archive.get(), index, 0);
        Result<std::string> content = unpacked(archive.get(), index, limit);
        if (name == nullptr || !content) {
            return failed(name == nullptr ? zip_strerror(archive.get()) : content.reason);
        }
        limit -= content.value->size();
        if (!files.emplace(name, std::move(*content.value)).second) {
            return failed('"' + std::string(name) + "\" stands in it twice");
        }
    }
    return {std::move(files), {}};
}

} // namespace brindor::authoring
