#include "base/random.h"
#include "generated.h"
#include "questions/question.h"
#include "questions/selection.h"
#include "support/allocations.h"
#include "timeline/reader.h"
#include "timeline/timeline.h"
#include "timeline/usedmarks.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <string>

// How long it takes to draw the items of a question, and to find out which types can be asked.
namespace brindor {

namespace {

void drawquestion()
{
    for (std::int16_t slot = 0; slot < itemsasked; ++slot) {
        benchmark::DoNotOptimize(getitem(slot));
    }
}

// As many questions of one type as wanted in a row, on a shipped timeline; the marks rise as in a game of skips.
void Shipped(benchmark::State& state)
{
    curperiod = static_cast<std::int16_t>(state.range(0));
    if (!filltimeline(periodfile(curperiod))) {
        state.SkipWithError("no timeline in this folder: run scripts/bench");
        return;
    }
    clearmarks();
    qtype = static_cast<std::int16_t>(state.range(1));
    const std::int64_t before = tests::allocations;
    for (auto _ : state) {
        drawquestion();
    }
    const auto slots = static_cast<double>(state.iterations() * itemsasked);
    state.counters["allocations"] = static_cast<double>(tests::allocations - before) / slots;
}

// One question at a time on the largest timeline, all marks as at the start; all but four records of a family are
// alike, and lie in front.
void Sparse(benchmark::State& state)
{
    bench::loadtimeline(mostrecords, 1, 4);
    qtype = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        clearmarks();
        state.ResumeTiming();
        drawquestion();
    }
}

// The same, where all items differ and all but one have been asked before.
void Worn(benchmark::State& state)
{
    bench::loadtimeline(mostrecords, mostrecords);
    qtype = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        for (std::size_t i = 0; i < usedmarks.size(); ++i) {
            usedmarks[i] = static_cast<std::int16_t>(i % 40 + 1);
        }
        usedmarks[7] = 0;
        state.ResumeTiming();
        drawquestion();
    }
}

// The same, with five texts in all, each more worn than the one before.
void Layered(benchmark::State& state)
{
    bench::loadtimeline(mostrecords, 5);
    qtype = static_cast<std::int16_t>(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        for (std::int16_t i = 0; i < mostrecords; ++i) {
            usedmarks[usedslot(0, i)] = usedmarks[usedslot(1, i)] = static_cast<std::int16_t>(i % 5);
        }
        state.ResumeTiming();
        drawquestion();
    }
}

// Which of all types can be asked, on the largest timeline, where none can; the argument says how many texts there are.
void Choice(benchmark::State& state)
{
    bench::loadtimeline(mostrecords, static_cast<std::int16_t>(state.range(0)));
    for (auto _ : state) {
        ++timelinestate;
        benchmark::DoNotOptimize(fillabletypes());
    }
}

const auto alltypes = benchmark::CreateDenseRange(1, lasttype, 1);

BENCHMARK(Shipped)
    ->ArgsProduct({benchmark::CreateDenseRange(0, lastperiod, 1), alltypes})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(Sparse)->ArgsProduct({alltypes})->Unit(benchmark::kMicrosecond);
BENCHMARK(Worn)->ArgsProduct({alltypes})->Unit(benchmark::kMicrosecond);
BENCHMARK(Layered)->ArgsProduct({alltypes})->Unit(benchmark::kMicrosecond);
BENCHMARK(Choice)->Arg(1)->Arg(4)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace brindor

BENCHMARK_MAIN();
