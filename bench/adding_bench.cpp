// Adding pen samples to the engine beside appending them to a vector.
#include "ink/drawing.h"
#include "support/fake_clock.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

namespace zq::LM::bench {
namespace {

PenData SampleAt(std::int32_t x)
{
    PenData sample{};
    sample.time = 1;
    sample.x = x;
    sample.y = 1;
    sample.pressure = 1;
    return sample;
}

void AddingToTheLibrary(benchmark::State& state)
{
    test::SetClock(1000);
    Drawing drawing;
    std::vector<PenData> batch(static_cast<std::size_t>(state.range(0)), SampleAt(1));
    batch.push_back(SampleAt(0)); // drops what is pending, so that the set stays as large as one batch
    for ([[maybe_unused]] auto iteration : state) {
        drawing.AddPenDataAry(batch.data(), batch.size());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void AddingToAVector(benchmark::State& state)
{
    const std::vector<PenData> batch(static_cast<std::size_t>(state.range(0)), SampleAt(1));
    std::vector<PenData> pending;
    for ([[maybe_unused]] auto iteration : state) {
        for (const PenData& sample : batch) {
            pending.push_back(sample);
        }
        benchmark::DoNotOptimize(pending.data());
        benchmark::ClobberMemory();
        pending.clear();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(AddingToTheLibrary)->Name("adding/library")->Arg(1)->Arg(10)->Arg(100)->Arg(1000);
BENCHMARK(AddingToAVector)->Name("adding/bare")->Arg(1)->Arg(10)->Arg(100)->Arg(1000);

} // namespace
} // namespace zq::LM::bench
