// A log call that the level filters out beside the bare comparison of two numbers.
#include "log/debug_log.h"

#include <benchmark/benchmark.h>

#include <cstdint>

namespace zq::LM::bench {
namespace {

// A single call is too short to be timed.
constexpr int CallsPerIteration = 1000;

void FilteredOutLine(benchmark::State& state)
{
    SetDebugLevel(NORMAL);
    for ([[maybe_unused]] auto iteration : state) {
        for (int i = 0; i < CallsPerIteration; ++i) {
            LogA(DETAILED, "\tThis line is filtered out.\n");
            benchmark::ClobberMemory();
        }
    }
    SetDebugLevel(NONE);
    state.SetItemsProcessed(state.iterations() * CallsPerIteration);
}

void Comparison(benchmark::State& state)
{
    std::uint32_t level = NORMAL;
    std::uint32_t passed = 0;
    benchmark::DoNotOptimize(level);
    for ([[maybe_unused]] auto iteration : state) {
        for (int i = 0; i < CallsPerIteration; ++i) {
            if (DETAILED <= level) {
                benchmark::DoNotOptimize(++passed);
            }
            benchmark::ClobberMemory();
            benchmark::DoNotOptimize(level); // read again in each turn, as the log does
        }
    }
    state.SetItemsProcessed(state.iterations() * CallsPerIteration);
}

BENCHMARK(FilteredOutLine)->Name("log of 1000 lines/library");
BENCHMARK(Comparison)->Name("log of 1000 lines/bare");

} // namespace
} // namespace zq::LM::bench
