#include "generated.h"
#include "timeline/reader.h"
#include "timeline/timeline.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

// How long a timeline file takes to load, against a bare pass over the same bytes. The arguments are the size in
// percent of the most that the format holds, and how long the texts are, a bench::Texts.
namespace brindor {

namespace {

std::int16_t recordsof(std::int64_t percent)
{
    return static_cast<std::int16_t>(mostrecords * percent / 100);
}

const std::string& content(const benchmark::State& state)
{
    static std::int64_t percent = 0;
    static std::int64_t texts = 0;
    static std::string text;
    if (percent != state.range(0) || texts != state.range(1)) {
        percent = state.range(0);
        texts = state.range(1);
        text = bench::writetimeline(recordsof(percent), recordsof(percent), 0, static_cast<bench::Texts>(texts));
    }
    return text;
}

// The floor: finds the ends of the lines in memory and copies each text into a string that stands ready. Nothing is
// opened, no number read, nothing checked.
struct Texts {
    std::array<std::string, 5> texts;
};

void barepass(std::string_view text, std::int64_t records, std::vector<Texts>& items, std::vector<std::string>& entries)
{
    const char* at = text.data();
    const char* const end = at + text.size();
    const auto line = [&at, end] {
        const char* start = at;
        const void* found = std::memchr(at, '\n', static_cast<std::size_t>(end - at));
        at = static_cast<const char*>(found) + 1;
        return std::string_view(start, static_cast<std::size_t>(at - start) - 1);
    };
    const auto skip = [&line](int lines) {
        for (int i = 0; i < lines; ++i) {
            benchmark::DoNotOptimize(line());
        }
    };
    skip(2);
    std::size_t item = 0;
    for (int family = 0; family < 2; ++family) {
        skip(1);
        for (std::int64_t i = 0; i < records; ++i) {
            std::array<std::string, 5>& texts = items[item++].texts;
            skip(1);
            texts[0] = line();
            skip(2);
            texts[1] = line();
            texts[2] = line();
            texts[3] = line();
            skip(1);
            texts[4] = line();
            skip(1);
        }
    }
    std::size_t entry = 0;
    for (int catalogue = 0; catalogue < 4; ++catalogue) {
        skip(2);
        for (std::int64_t i = 0; i < records; ++i) {
            skip(1);
            entries[entry++] = line();
            skip(1);
        }
    }
}

void Floor(benchmark::State& state)
{
    const std::string& text = content(state);
    const auto records = static_cast<std::size_t>(recordsof(state.range(0)));
    bench::forgettimeline();
    for (auto _ : state) {
        state.PauseTiming();
        {
            std::vector<Texts> items(2 * records);
            std::vector<std::string> entries(4 * records);
            state.ResumeTiming();
            barepass(text, static_cast<std::int64_t>(records), items, entries);
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}

void Load(benchmark::State& state)
{
    content(state);
    for (auto _ : state) {
        state.PauseTiming();
        bench::forgettimeline();
        state.ResumeTiming();
        if (!filltimeline(bench::generatedfile)) {
            std::abort();
        }
    }
    bench::forgettimeline();
}

// The same over what an earlier load has left, as when a period is chosen again.
void Again(benchmark::State& state)
{
    content(state);
    for (auto _ : state) {
        if (!filltimeline(bench::generatedfile)) {
            std::abort();
        }
    }
    bench::forgettimeline();
}

const std::vector<std::vector<std::int64_t>> shapes = {{1, 10, 100}, {0, 1, 2}};

BENCHMARK(Floor)->ArgsProduct(shapes)->Unit(benchmark::kMicrosecond);
BENCHMARK(Load)->ArgsProduct(shapes)->Unit(benchmark::kMicrosecond);
BENCHMARK(Again)->ArgsProduct(shapes)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace brindor
