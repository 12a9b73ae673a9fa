// The ink that the engine's benchmarks draw, and what its callbacks do.
#pragma once

#include "ink/params.h"
#include "ink/pen_data.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <vector>

namespace zq::LM::bench {

// What both sides call in the end: it reads its arguments and returns.
inline void TakeLine(int x1, int y1, int w1, unsigned c1, int x2, int y2, int w2, unsigned c2)
{
    benchmark::DoNotOptimize(x1 + y1 + w1 + x2 + y2 + w2);
    benchmark::DoNotOptimize(c1 + c2);
}

inline void TakeCall() { benchmark::ClobberMemory(); }

inline void TakeBatch(std::vector<PenData>*, unsigned, unsigned) {}

// A wave across the screen, as a pen draws it.
inline std::vector<PenData> Wave(std::int64_t count)
{
    std::vector<PenData> samples;
    for (std::int32_t i = 0; i < count; ++i) {
        PenData sample{};
        sample.time = 1;
        sample.x = 100 + i;
        sample.y = 500 + i % 50;
        sample.pressure = 1 + i * 31 % 32767;
        samples.push_back(sample);
    }
    return samples;
}

// The three ways in which a record lets strokes be drawn: one pass, two and three.
inline Params MainOnly() { return DefaultParams; }

inline Params MainAndOutline()
{
    Params params = DefaultParams;
    params.outline = 1;
    return params;
}

inline Params Hollow()
{
    Params params = DefaultParams;
    params.line = 0;
    params.outline = 1;
    return params;
}

// Samples are let in, and none of them is drawn: the pen touches, so it has no cursor.
inline Params Nothing()
{
    Params params = DefaultParams;
    params.line = 0;
    return params;
}

} // namespace zq::LM::bench
