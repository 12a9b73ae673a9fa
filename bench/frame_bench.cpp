// A frame of the ink engine beside a loop that only makes the same calls.
#include "ink/drawing.h"
#include "support/fake_clock.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <utility>
#include <vector>

namespace zq::LM::bench {
namespace {

// What both sides call in the end: it reads its arguments and returns.
void TakeLine(int x1, int y1, int w1, unsigned c1, int x2, int y2, int w2, unsigned c2)
{
    benchmark::DoNotOptimize(x1 + y1 + w1 + x2 + y2 + w2);
    benchmark::DoNotOptimize(c1 + c2);
}

void TakeCall() { benchmark::ClobberMemory(); }

// A wave across the screen, as a pen draws it.
PenData SampleOf(std::int32_t i)
{
    PenData sample{};
    sample.time = 1;
    sample.x = 100 + i;
    sample.y = 500 + i % 50;
    sample.pressure = 1 + i * 31 % 32767;
    return sample;
}

std::vector<PenData> SamplesOf(std::int64_t segments)
{
    std::vector<PenData> samples;
    for (std::int32_t i = 0; i <= segments; ++i) {
        samples.push_back(SampleOf(i));
    }
    return samples;
}

void FrameOfTheLibrary(benchmark::State& state)
{
    test::SetClock(1000); // stands still: no sample ages
    Drawing drawing;
    drawing.SetCallbacks(
        TakeCall, TakeCall, [](bool) { return 0U; }, TakeLine, TakeLine,
        [](std::vector<PenData>*, unsigned, unsigned) {});
    const std::vector<PenData> samples = SamplesOf(state.range(0));
    drawing.AddPenDataAry(samples.data(), samples.size());
    for ([[maybe_unused]] auto iteration : state) {
        drawing.DrawLumoraLines();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

struct Line {
    int x1, y1, x2, y2;
    unsigned width;
};

void FrameOfBareCalls(benchmark::State& state)
{
    // The two nested wrappers that the engine calls through, too: signed widths inside unsigned ones.
    SignedLineFunction signedLine = TakeLine;
    const LineFunction drawLine = std::move(signedLine);
    const ClearFunction clear = TakeCall;
    const PresentFunction present = TakeCall;
    const std::vector<PenData> samples = SamplesOf(state.range(0));
    std::vector<Line> lines;
    for (std::size_t i = 0; i + 1 < samples.size(); ++i) {
        const PenData& newer = samples[i + 1];
        lines.push_back(
            {samples[i].x, samples[i].y, newer.x, newer.y, SegmentWidth(DefaultParams, newer.pressure)});
    }
    for ([[maybe_unused]] auto iteration : state) {
        clear();
        for (const Line& line : lines) {
            drawLine(line.x1, line.y1, line.width, 0x00202020, line.x2, line.y2, line.width, 0x00202020);
        }
        present();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(FrameOfTheLibrary)->Name("frame/library")->Arg(1)->Arg(30)->Arg(300)->Arg(1000);
BENCHMARK(FrameOfBareCalls)->Name("frame/bare")->Arg(1)->Arg(30)->Arg(300)->Arg(1000);

} // namespace
} // namespace zq::LM::bench
