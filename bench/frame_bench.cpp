// A frame of the ink engine beside plain loops of the same arithmetic, and beside the calls alone.
#include "bare_engine.h"
#include "engine_ink.h"
#include "support/fake_clock.h"

#include <utility>

namespace zq::LM::bench {
namespace {

// The clock stands still: no sample ages.
void FrameOfTheLibrary(benchmark::State& state, Params (*record)())
{
    test::SetClock(1000);
    Drawing engine;
    engine.SetCallbacks(
        TakeCall, TakeCall, [](bool) { return 0U; }, TakeLine, TakeLine, TakeBatch);
    const Params params = record();
    engine.SetParams(&params);
    const std::vector<PenData> samples = Wave(state.range(0));
    engine.AddPenDataAry(samples.data(), samples.size());
    for ([[maybe_unused]] auto iteration : state) {
        engine.DrawLumoraLines();
    }
}

void BareFrame(benchmark::State& state, Params (*record)())
{
    test::SetClock(1000);
    BareEngine engine(record(), TakeLine, TakeLine);
    const std::vector<PenData> samples = Wave(state.range(0));
    engine.Add(samples.data(), samples.size());
    for ([[maybe_unused]] auto iteration : state) {
        engine.Frame();
    }
}

struct Line {
    int x1, y1, x2, y2;
    unsigned width;
};

std::vector<Line> LinesOf(const std::vector<PenData>& samples)
{
    std::vector<Line> lines;
    for (std::size_t i = 0; i + 1 < samples.size(); ++i) {
        const PenData& newer = samples[i + 1];
        lines.push_back(
            {samples[i].x, samples[i].y, newer.x, newer.y, SegmentWidth(DefaultParams, newer.pressure)});
    }
    return lines;
}

// With ready arguments: what is not arithmetic in a frame.
void CallsOfAFrame(benchmark::State& state)
{
    SignedLineFunction signedLine = TakeLine;
    const LineFunction drawLine = std::move(signedLine);
    const ClearFunction clear = TakeCall;
    const PresentFunction present = TakeCall;
    const std::vector<Line> lines = LinesOf(Wave(state.range(0)));
    for ([[maybe_unused]] auto iteration : state) {
        clear();
        for (const Line& line : lines) {
            drawLine(line.x1, line.y1, line.width, 0x00202020, line.x2, line.y2, line.width, 0x00202020);
        }
        present();
    }
}

void Sizes(benchmark::internal::Benchmark* benchmark)
{
    for (const int size : {2, 10, 100, 1000, 10'000}) {
        benchmark->Arg(size);
    }
}

BENCHMARK_CAPTURE(FrameOfTheLibrary, main, MainOnly)->Name("frame/library")->Apply(Sizes);
BENCHMARK_CAPTURE(BareFrame, main, MainOnly)->Name("frame/bare")->Apply(Sizes);
BENCHMARK_CAPTURE(FrameOfTheLibrary, calls, MainOnly)->Name("frame and calls/library")->Arg(1000);
BENCHMARK(CallsOfAFrame)->Name("frame and calls/bare")->Arg(1000);
BENCHMARK_CAPTURE(FrameOfTheLibrary, outline, MainAndOutline)->Name("outline and main/library")->Arg(1000);
BENCHMARK_CAPTURE(BareFrame, outline, MainAndOutline)->Name("outline and main/bare")->Arg(1000);
BENCHMARK_CAPTURE(FrameOfTheLibrary, hollow, Hollow)->Name("outline, main and hollow/library")->Arg(1000);
BENCHMARK_CAPTURE(BareFrame, hollow, Hollow)->Name("outline, main and hollow/bare")->Arg(1000);

} // namespace
} // namespace zq::LM::bench
