// How the pen host's wet ink becomes dry.
#include "pen-host/stroke.h"

#include "ink/params.h"

#include <gtest/gtest.h>

namespace pen_host {
namespace {

Stroke StrokeOfTimes(const std::vector<std::uint32_t>& times)
{
    Stroke stroke;
    for (const std::uint32_t time : times) {
        stroke.points.push_back({1, 1, 1, time});
    }
    return stroke;
}

TEST(DryInk, IsWhatHasReachedTheAge)
{
    Stroke stroke = StrokeOfTimes({1000, 1100, 1200, 1300});
    Dry(stroke, 1399, 400);
    EXPECT_EQ(stroke.dryCount, 0U);
    Dry(stroke, 1500, 400);
    EXPECT_EQ(stroke.dryCount, 2U);
}

TEST(DryInk, IsAllOfAStrokeAtItsEnd)
{
    Stroke stroke = StrokeOfTimes({1000, 1100});
    Dry(stroke, 1100, 0);
    EXPECT_EQ(stroke.dryCount, 2U);
}

TEST(DryInk, DoesNotBecomeWetAgain)
{
    Stroke stroke = StrokeOfTimes({1000, 1100});
    Dry(stroke, 1100, 0);
    Dry(stroke, 1100, 400);
    EXPECT_EQ(stroke.dryCount, 2U);
}

TEST(DryInk, OutlivesTheWrapOfTheClock)
{
    Stroke stroke = StrokeOfTimes({0xFFFFFFF0, 0xFFFFFFFF});
    Dry(stroke, 0xFFFFFFF0 + 400, 400);
    EXPECT_EQ(stroke.dryCount, 1U);
}

TEST(DryInk, IsDarkerThanWetInk)
{
    EXPECT_EQ(DryColour({30, 110, 230}), (lumora::Colour{15, 55, 115}));
    EXPECT_EQ(DryColour({0, 1, 255}), (lumora::Colour{0, 0, 127}));
}

TEST(StrokeWidth, GrowsWithPressureBetweenItsBounds)
{
    lumora::Params ink;
    ink.brushSize = 10;
    ink.minBrushSize = 3;
    ink.maxPressure = 1000;
    EXPECT_EQ(StrokeWidth(ink, 1), 3);
    EXPECT_EQ(StrokeWidth(ink, 649), 6);
    EXPECT_EQ(StrokeWidth(ink, 650), 7);
    EXPECT_EQ(StrokeWidth(ink, 1000), 10);
    EXPECT_EQ(StrokeWidth(ink, 5000), 10);
}

TEST(StrokeWidth, IsTheBrushsWithoutPressure)
{
    lumora::Params ink;
    ink.usePressure = false;
    EXPECT_EQ(StrokeWidth(ink, 1), 10);
    ink.usePressure = true;
    ink.maxPressure = 0;
    EXPECT_EQ(StrokeWidth(ink, 1), 10);
}

// The library's own rule, for what a person can set.
TEST(StrokeWidth, IsLumoras)
{
    for (const std::uint32_t brushSize : {1U, 6U, 77U, 200U}) {
        for (const std::uint32_t minBrushSize : {1U, 5U, 300U}) {
            lumora::Params ink;
            ink.brushSize = brushSize;
            ink.minBrushSize = minBrushSize;
            const LM_Params record = lumora::ToRecord(ink);
            for (std::int32_t pressure = 1; pressure <= 32768; pressure += 7) {
                ASSERT_EQ(static_cast<std::uint32_t>(StrokeWidth(ink, pressure)),
                          zq::LM::SegmentWidth(record, pressure))
                    << brushSize << ' ' << minBrushSize << ' ' << pressure;
            }
        }
    }
}

} // namespace
} // namespace pen_host
