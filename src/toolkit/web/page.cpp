#include "toolkit/web/page.h"

#include <array>
#include <charconv>
#include <cstdlib>
#include <string_view>

#include <emscripten.h>

// clang-format off
EM_ASYNC_JS(char*, page_nextevent, (), { return allocateUTF8(await Module.page.nextevent()); });
EM_ASYNC_JS(char*, page_fetchpicture, (const char* file), {
    return allocateUTF8(await Module.page.fetchpicture(UTF8ToString(file)));
});
EM_JS(void, page_post, (const char* json), { Module.page.post(JSON.parse(UTF8ToString(json))); });
EM_JS(int, page_measure, (int window, int control, int width), {
    return Module.page.measure(window, control, width);
});
EM_JS(int, page_width, (), { return Module.page.width(); });
EM_JS(int, page_height, (), { return Module.page.height(); });
EM_JS(double, page_seed, (), { return Module.page.seed(); });
// clang-format on

namespace brindor::toolkit::web {

namespace {

std::string taken(char* text)
{
    std::string result(text);
    std::free(text);
    return result;
}

// Numbers at the head of a text, each with a blank behind it; what is missing is 0. The rest stays.
template <std::size_t Count>
std::array<int, Count> takenumbers(std::string_view& text)
{
    std::array<int, Count> numbers{};
    for (int& number : numbers) {
        const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
        text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
        text.remove_prefix(text.starts_with(' ') ? 1 : 0);
    }
    return numbers;
}

} // namespace

Event nextevent()
{
    const std::string line = taken(page_nextevent());
    std::string_view rest = line;
    const auto [window, control, number] = takenumbers<3>(rest);
    const std::size_t end = rest.find(' ');
    return {window, std::string(rest.substr(0, end)), control, number,
            end == std::string_view::npos ? std::string() : std::string(rest.substr(end + 1))};
}

void post(const std::string& json)
{
    page_post(json.c_str());
}

int measure(int window, int control, int width)
{
    return page_measure(window, control, width);
}

Size pagesize()
{
    return {static_cast<double>(page_width()), static_cast<double>(page_height())};
}

FetchedPicture fetchpicture(const std::string& file)
{
    const std::string answer = taken(page_fetchpicture(file.c_str()));
    std::string_view rest = answer;
    const auto [id, width, height, error] = takenumbers<4>(rest);
    return {id, width, height, error};
}

void forgetpicture(int id)
{
    post("{\"forget\":" + std::to_string(id) + '}');
}

std::optional<std::uint64_t> seedofaddress()
{
    const double seed = page_seed();
    return seed < 0 ? std::nullopt : std::optional(static_cast<std::uint64_t>(seed));
}

void tellended()
{
    post("{\"ended\":true}");
}

} // namespace brindor::toolkit::web
