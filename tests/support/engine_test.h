// The ink engine with recorded callbacks and a hand-driven clock: what its tests start from.
#pragma once

#include "ink/drawing.h"
#include "support/fake_clock.h"
#include "support/recorded_calls.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace zq::LM::test {

inline constexpr std::uint32_t Start = 100'000; // the clock when a test begins
inline constexpr std::uint32_t Ink = 0x00202020;
inline constexpr std::uint32_t White = 0x00FFFFFF;
inline constexpr std::int32_t Touching = 0x7FFF; // full pressure of the default record
inline constexpr std::int32_t Hovering = 0;
inline constexpr std::uint32_t Forever = 0xFFFFFFFF; // an ink life

inline PenData Sample(Point at, std::int32_t pressure = Touching)
{
    return {.time = 1,
            .aux1 = 0,
            .x = at.x,
            .y = at.y,
            .aux4 = 0,
            .pressure = pressure,
            .aux6 = 0,
            .aux7 = 0,
            .aux8 = 0};
}

class EngineTest : public testing::Test {
protected:
    EngineTest()
    {
        SetClock(Start);
        calls.BindTo(drawing);
    }

    // Changes some fields of the engine's record.
    template <class Change> void Set(Change change)
    {
        Params params = Record();
        change(params);
        drawing.SetParams(&params);
    }

    Params Record()
    {
        Params params{};
        drawing.GetCopiedParams(&params);
        return params;
    }

    void Add(const std::vector<PenData>& samples) { drawing.AddPenDataAry(samples.data(), samples.size()); }

    // One sample, received so many milliseconds after the start; the clock stays there.
    void AddAt(std::int32_t milliseconds, Point at, std::int32_t pressure = Touching)
    {
        MoveClock(milliseconds);
        Add({Sample(at, pressure)});
    }

    // The clock so many milliseconds after the start, or before it.
    static void MoveClock(std::int32_t milliseconds)
    {
        SetClock(Start + static_cast<std::uint32_t>(milliseconds));
    }

    // What one frame calls, whole or without clear and present.
    Calls Frame()
    {
        drawing.DrawLumoraLines();
        return calls.Take();
    }

    Calls Drawn()
    {
        drawing.DrawLumoraLines();
        return calls.TakeBetweenClearAndPresent();
    }

    // The live samples as a frame hands them out whole: at least two of them, or the answer is empty. The
    // record stays what it was, but samples that outlived the ink are dropped as in every frame.
    std::vector<PenData> LiveSamples()
    {
        const Params before = Record();
        Set([](Params& params) {
            params.line = 0;
            params.outline = 1;
            params.colorPicker = 0;
        });
        calls.penData.clear();
        drawing.SetVectorOutline(true);
        drawing.DrawLumoraLines();
        drawing.SetVectorOutline(false);
        drawing.SetParams(&before);
        calls.Take();
        return calls.penData;
    }

    // The x of every live sample, which is how tests tell samples apart.
    std::vector<std::int32_t> LiveX()
    {
        std::vector<std::int32_t> positions;
        for (const PenData& sample : LiveSamples()) {
            positions.push_back(sample.x);
        }
        return positions;
    }

    RecordedCalls calls;
    Drawing drawing;
};

} // namespace zq::LM::test
