// The stroke width for a pressure: rounding, clamps and what happens outside the usual range.
#include "ink/params.h"

#include <gtest/gtest.h>

#include <limits>

namespace zq::LM {
namespace {

constexpr std::int32_t MostPressure = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t LeastPressure = std::numeric_limits<std::int32_t>::min();

Params Brush(std::uint32_t minBrushSize, std::uint32_t brushSize, std::uint32_t maxPressure)
{
    Params params = DefaultParams;
    params.minBrushSize = minBrushSize;
    params.brushSize = brushSize;
    params.maxPressure = maxPressure;
    return params;
}

TEST(PressureWidth, FullPressureGivesTheBrushSize) { EXPECT_EQ(PressureWidth(DefaultParams, 32767), 10U); }

TEST(PressureWidth, HalfOfAnOddRangeRoundsDown) { EXPECT_EQ(PressureWidth(DefaultParams, 16384), 5U); }

TEST(PressureWidth, LeastTouchGivesTheSmallestWidth) { EXPECT_EQ(PressureWidth(DefaultParams, 1), 1U); }

TEST(PressureWidth, ExactlyHalfAPixelRoundsUp)
{
    EXPECT_EQ(PressureWidth(Brush(0, 10, 20), 1), 1U); // 0.5 + 0.5
    EXPECT_EQ(PressureWidth(Brush(0, 10, 20), 5), 3U); // 2.5 + 0.5
}

TEST(PressureWidth, JustBelowHalfAPixelRoundsDown) { EXPECT_EQ(PressureWidth(Brush(0, 100, 1000), 4), 0U); }

TEST(PressureWidth, AboveFullPressureStaysAtTheBrushSize)
{
    EXPECT_EQ(PressureWidth(DefaultParams, 40000), 10U);
}

TEST(PressureWidth, SmallestWidthHoldsFromBelow)
{
    EXPECT_EQ(PressureWidth(Brush(4, 10, 10), 3), 4U);
    EXPECT_EQ(PressureWidth(Brush(4, 10, 10), 4), 4U);
    EXPECT_EQ(PressureWidth(Brush(4, 10, 10), 5), 5U);
}

TEST(PressureWidth, SmallestWidthAboveTheBrushSizeGivesTheBrushSize)
{
    EXPECT_EQ(PressureWidth(Brush(20, 10, 100), 1), 10U);
    EXPECT_EQ(PressureWidth(Brush(20, 10, 100), 100), 10U);
    EXPECT_EQ(PressureWidth(Brush(0xFFFFFFFF, 10, 100), 50), 10U);
}

TEST(PressureWidth, ClampsCompareUnsigned)
{
    EXPECT_EQ(PressureWidth(Brush(0x80000000, 0xFFFFFFFF, 100), 1), 0x80000000U);
    EXPECT_EQ(PressureWidth(Brush(1, 0x80000000, 100), 200), 0x80000000U);
}

TEST(PressureWidth, MaxPressureOfZeroGivesTheBrushSize) { EXPECT_EQ(PressureWidth(Brush(1, 10, 0), 1), 10U); }

TEST(PressureWidth, MaxPressureAbove31BitsIsUnsigned)
{
    EXPECT_EQ(PressureWidth(Brush(0, 100, 0xFFFFFFFE), MostPressure), 50U);
}

TEST(PressureWidth, TooLargeResultSaturates)
{
    // 2147483647 / 1 * 4294967295 is far beyond 32 bits.
    EXPECT_EQ(PressureWidth(Brush(1, 0xFFFFFFFF, 1), MostPressure), 0xFFFFFFFFU);
}

TEST(PressureWidth, LargestBrushAtFullPressureIsExact)
{
    EXPECT_EQ(PressureWidth(Brush(1, 0xFFFFFFFF, 100), 100), 0xFFFFFFFFU);
    EXPECT_EQ(PressureWidth(Brush(1, 0xFFFFFFFE, 100), 100), 0xFFFFFFFEU);
}

TEST(PressureWidth, BrushSizeOfZeroGivesZero) { EXPECT_EQ(PressureWidth(Brush(1, 0, 100), 100), 0U); }

TEST(PressureWidth, InfinityTimesAnEmptyBrushGivesZero) { EXPECT_EQ(PressureWidth(Brush(1, 0, 0), 1), 0U); }

TEST(PressureWidth, NoPressureInAnEmptyRangeCountsAsZero)
{
    EXPECT_EQ(PressureWidth(Brush(3, 10, 0), 0), 3U);
}

TEST(PressureWidth, NegativePressureGivesTheSmallestWidth)
{
    EXPECT_EQ(PressureWidth(Brush(2, 10, 100), -1), 2U);
    EXPECT_EQ(PressureWidth(Brush(2, 10, 100), LeastPressure), 2U);
    EXPECT_EQ(PressureWidth(Brush(2, 10, 0), -1), 2U);
}

TEST(SegmentWidth, WithoutPressureIsTheBrushSizeWhateverThePressure)
{
    Params params = Brush(3, 7, 100);
    params.usePressure = 0;
    for (const std::int32_t pressure : {LeastPressure, -1, 0, 1, 50, MostPressure}) {
        EXPECT_EQ(SegmentWidth(params, pressure), 7U) << pressure;
    }
}

TEST(SegmentWidth, WithoutPressureIgnoresTheSmallestWidth)
{
    Params params = Brush(20, 7, 100);
    params.usePressure = 0;
    EXPECT_EQ(SegmentWidth(params, 1), 7U);
}

TEST(SegmentWidth, FollowsPressureForAnyFlagButZero)
{
    Params params = Brush(1, 10, 100);
    for (const int flag : {1, 2, 0xFF}) {
        params.usePressure = static_cast<std::uint8_t>(flag);
        EXPECT_EQ(SegmentWidth(params, 50), 5U) << flag;
    }
}

} // namespace
} // namespace zq::LM
