// The way of samples through the engine beside plain loops: added, moved to the live ones, aged.
#include "bare_engine.h"
#include "engine_ink.h"
#include "support/fake_clock.h"

namespace zq::LM::bench {
namespace {

void Bind(Drawing& engine, const Params& params)
{
    engine.SetCallbacks(
        TakeCall, TakeCall, [](bool) { return 0U; }, TakeLine, TakeLine, TakeBatch);
    engine.SetParams(&params);
}

// The samples, and one that drops what is pending, so that the set stays as large as one batch.
std::vector<PenData> DroppedBatch(std::int64_t count)
{
    std::vector<PenData> batch = Wave(count);
    batch.push_back({});
    return batch;
}

void AddedToTheLibrary(benchmark::State& state)
{
    test::SetClock(1000);
    Drawing engine;
    Bind(engine, Nothing());
    const std::vector<PenData> batch = DroppedBatch(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        engine.AddPenDataAry(batch.data(), batch.size());
    }
}

void AddedBare(benchmark::State& state)
{
    test::SetClock(1000);
    BareEngine engine(Nothing(), TakeLine, TakeLine);
    const std::vector<PenData> batch = DroppedBatch(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        engine.Add(batch.data(), batch.size());
    }
}

// Added, moved by a frame that draws nothing, and dropped all at once.
void MovedByTheLibrary(benchmark::State& state)
{
    test::SetClock(1000);
    Drawing engine;
    Bind(engine, Nothing());
    const std::vector<PenData> batch = Wave(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        engine.AddPenDataAry(batch.data(), batch.size());
        engine.DrawLumoraLines();
        engine.ClearLivePenData();
    }
}

void MovedBare(benchmark::State& state)
{
    test::SetClock(1000);
    BareEngine engine(Nothing(), TakeLine, TakeLine);
    const std::vector<PenData> batch = Wave(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        engine.Add(batch.data(), batch.size());
        engine.Frame();
        engine.ClearLive();
    }
}

// Ink that does not live at all: the frame that moves the samples drops every one of them for its age.
Params NothingLives()
{
    Params params = Nothing();
    params.inkDecayTime = 0;
    return params;
}

void AgedByTheLibrary(benchmark::State& state)
{
    test::SetClock(1000);
    Drawing engine;
    Bind(engine, NothingLives());
    const std::vector<PenData> batch = Wave(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        engine.AddPenDataAry(batch.data(), batch.size());
        engine.DrawLumoraLines();
    }
}

void AgedBare(benchmark::State& state)
{
    test::SetClock(1000);
    BareEngine engine(NothingLives(), TakeLine, TakeLine);
    const std::vector<PenData> batch = Wave(state.range(0));
    for ([[maybe_unused]] auto iteration : state) {
        engine.Add(batch.data(), batch.size());
        engine.Frame();
    }
}

// A turn adds ten samples and draws a frame; its clock goes on so far that a hundred samples live.
void TakeTurn(Drawing& engine, const std::vector<PenData>& batch)
{
    test::AdvanceClock(10);
    engine.AddPenDataAry(batch.data(), batch.size());
    engine.DrawLumoraLines();
}

// What stands for the bare loop here is the engine itself, when it has seen no more than the live ink.
void TurnAfter(benchmark::State& state, int samplesBefore)
{
    constexpr int Batch = 10;
    test::SetClock(1000);
    Drawing engine;
    Bind(engine, MainOnly());
    const std::vector<PenData> batch = Wave(Batch);
    for (int turn = 0; turn < samplesBefore / Batch; ++turn) {
        TakeTurn(engine, batch);
    }
    for ([[maybe_unused]] auto iteration : state) {
        TakeTurn(engine, batch);
    }
}

void TurnAfterTenMillion(benchmark::State& state) { TurnAfter(state, 10'000'000); }
void TurnAfterTen(benchmark::State& state) { TurnAfter(state, 10); }

void Batches(benchmark::internal::Benchmark* benchmark)
{
    for (const int size : {1, 10, 64, 100, 1000}) {
        benchmark->Arg(size);
    }
}

BENCHMARK(AddedToTheLibrary)->Name("added/library")->Apply(Batches);
BENCHMARK(AddedBare)->Name("added/bare")->Apply(Batches);
BENCHMARK(MovedByTheLibrary)->Name("moved/library")->Apply(Batches);
BENCHMARK(MovedBare)->Name("moved/bare")->Apply(Batches);
BENCHMARK(AgedByTheLibrary)->Name("aged/library")->Apply(Batches);
BENCHMARK(AgedBare)->Name("aged/bare")->Apply(Batches);
BENCHMARK(TurnAfterTenMillion)->Name("after ten million samples/library");
BENCHMARK(TurnAfterTen)->Name("after ten million samples/bare");

} // namespace
} // namespace zq::LM::bench
