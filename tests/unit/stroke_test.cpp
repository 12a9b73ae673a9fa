// The main pass: which segments it draws, how wide and in which colour.
#include "support/engine_test.h"

#include <gtest/gtest.h>

#include <limits>

namespace zq::LM::test {
namespace {

class MainStroke : public EngineTest {
protected:
    MainStroke()
    {
        Set([](Params& params) { params.cursor = 0; });
    }

    void AddSegment(std::int32_t pressure = Touching)
    {
        Add({Sample({100, 200}), Sample({110, 210}, pressure)});
    }

    Call Segment(std::uint32_t width, std::uint32_t colour = Ink) const
    {
        return DrawLine({100, 200}, {110, 210}, width, colour);
    }
};

TEST_F(MainStroke, WidthFollowsTheNewerSamplesPressure)
{
    Add({Sample({100, 200}, 1), Sample({110, 210}, 16384), Sample({120, 220}, 32767), Sample({130, 230}, 1)});
    EXPECT_EQ(Drawn(),
              (Calls{DrawLine({100, 200}, {110, 210}, 5, Ink), DrawLine({110, 210}, {120, 220}, 10, Ink),
                     DrawLine({120, 220}, {130, 230}, 1, Ink)}));
}

TEST_F(MainStroke, WithoutPressureTheWidthIsTheBrushSize)
{
    Set([](Params& params) {
        params.usePressure = 0;
        params.brushSize = 33;
    });
    AddSegment(1);
    EXPECT_EQ(Drawn(), Calls{Segment(33)});
}

TEST_F(MainStroke, ColourIsTheInksWithItsTopByte)
{
    Set([](Params& params) { params.inkColor = 0xAB0000FF; });
    AddSegment();
    EXPECT_EQ(Drawn(), Calls{Segment(10, 0xAB0000FF)});
}

TEST_F(MainStroke, TopBitOfTheWidthIsDropped)
{
    Set([](Params& params) {
        params.usePressure = 0;
        params.brushSize = 0x8000000A;
    });
    AddSegment();
    EXPECT_EQ(Drawn(), Calls{Segment(10)});
}

TEST_F(MainStroke, LargestBrushKeeps31Bits)
{
    Set([](Params& params) {
        params.usePressure = 0;
        params.brushSize = 0xFFFFFFFF;
    });
    AddSegment();
    EXPECT_EQ(Drawn(), Calls{Segment(0x7FFFFFFF)});
}

TEST_F(MainStroke, WidthOfZeroIsStillDrawn)
{
    Set([](Params& params) { params.brushSize = 0; });
    AddSegment();
    EXPECT_EQ(Drawn(), Calls{Segment(0)});
}

TEST_F(MainStroke, MaxPressureOfZeroGivesTheBrushSize)
{
    Set([](Params& params) { params.maxPressure = 0; });
    AddSegment(1);
    EXPECT_EQ(Drawn(), Calls{Segment(10)});
}

TEST_F(MainStroke, HoveringSampleBreaksTheStrokeOnBothSides)
{
    Add({Sample({1, 1}), Sample({2, 2}), Sample({3, 3}, Hovering), Sample({4, 4}), Sample({5, 5})});
    EXPECT_EQ(Drawn(), (Calls{DrawLine({1, 1}, {2, 2}, 10, Ink), DrawLine({4, 4}, {5, 5}, 10, Ink)}));
}

TEST_F(MainStroke, HoveringSampleBetweenTwoRemovesBothSegments)
{
    Add({Sample({1, 1}), Sample({2, 2}, Hovering), Sample({3, 3})});
    EXPECT_EQ(Drawn(), Calls{});
}

TEST_F(MainStroke, NegativePressureHovers)
{
    AddSegment(-1);
    EXPECT_EQ(Drawn(), Calls{});
}

TEST_F(MainStroke, PressureOfOneTouches)
{
    Add({Sample({100, 200}, 1), Sample({110, 210}, 1)});
    EXPECT_EQ(Drawn(), Calls{Segment(1)});
}

TEST_F(MainStroke, ZeroLengthSegmentIsDrawn)
{
    Add({Sample({100, 200}), Sample({100, 200})});
    EXPECT_EQ(Drawn(), Calls{DrawLine({100, 200}, {100, 200}, 10, Ink)});
}

TEST_F(MainStroke, OffsetShiftsStrokes50PixelsUp)
{
    Set([](Params& params) { params.useOffset = 1; });
    AddSegment();
    EXPECT_EQ(Drawn(), Calls{DrawLine({100, 150}, {110, 160}, 10, Ink)});
}

TEST_F(MainStroke, AnyOffsetFlagButZeroShifts)
{
    Set([](Params& params) { params.useOffset = 2; });
    AddSegment();
    EXPECT_EQ(Drawn(), Calls{DrawLine({100, 150}, {110, 160}, 10, Ink)});
}

TEST_F(MainStroke, OffsetWrapsAtTheLowestCoordinate)
{
    constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();
    Set([](Params& params) { params.useOffset = 1; });
    Add({Sample({Lowest, Lowest}), Sample({Highest, Highest})});
    EXPECT_EQ(Drawn(), Calls{DrawLine({Lowest, Highest - 49}, {Highest, Highest - 50}, 10, Ink)});
}

TEST_F(MainStroke, AgeCountsFromTheOlderSample)
{
    // The segment's older sample is gone when its life is over, and the segment with it.
    AddAt(0, {1, 1});
    AddAt(50, {2, 2});
    AddAt(60, {3, 3});
    MoveClock(99);
    EXPECT_EQ(Drawn().size(), 2U);
    MoveClock(100);
    EXPECT_EQ(Drawn(), Calls{DrawLine({2, 2}, {3, 3}, 10, Ink)});
}

TEST_F(MainStroke, OldSegmentBehindAYoungOneIsNotDrawn)
{
    // The clock ran backwards once: the first sample is young and keeps the old ones behind it alive.
    AddAt(90, {1, 1});
    AddAt(0, {2, 2});
    AddAt(1, {3, 3});
    AddAt(2, {4, 4});
    MoveClock(100);
    EXPECT_EQ(Drawn(), (Calls{DrawLine({1, 1}, {2, 2}, 10, Ink),
                              DrawLine({3, 3}, {4, 4}, 10, Ink)})); // ages 10, 100, 99
}

TEST_F(MainStroke, GapBetweenItsSamplesDoesNotMatter)
{
    AddAt(0, {100, 200});
    AddAt(500, {110, 210});
    MoveClock(50);
    EXPECT_EQ(Drawn(), Calls{Segment(10)});
}

TEST_F(MainStroke, SegmentOfTheFutureIsDrawnEvenWithoutAnyLife)
{
    Set([](Params& params) { params.inkDecayTime = 0; });
    AddAt(10, {100, 200});
    AddAt(10, {110, 210});
    MoveClock(5);
    EXPECT_EQ(Drawn(), Calls{Segment(10)});
}

TEST_F(MainStroke, ClockThatWrappedLeavesEarlierSegmentsYoung)
{
    SetClock(0xFFFFFFF0);
    AddSegment();
    SetClock(500);
    EXPECT_EQ(Drawn(), Calls{Segment(10)});
}

class ZebraStroke : public MainStroke {
protected:
    ZebraStroke()
    {
        Set([](Params& params) {
            params.zebraMode = 1;
            params.inkColor = 0x000000FF;
        });
        AddSegment();
    }

    std::uint32_t ColourAtAge(std::int32_t age)
    {
        MoveClock(age);
        const Calls drawn = Drawn();
        if (drawn.size() != 1) {
            ADD_FAILURE() << drawn.size() << " calls";
            return 0;
        }
        EXPECT_EQ(drawn[0].arguments[3], drawn[0].arguments[7]);
        return static_cast<std::uint32_t>(drawn[0].arguments[3]);
    }

    static constexpr std::uint32_t Red = 0x000000FF;
};

TEST_F(ZebraStroke, AlternatesInBandsOf10Milliseconds)
{
    EXPECT_EQ(ColourAtAge(5), Red);
    EXPECT_EQ(ColourAtAge(15), White);
    EXPECT_EQ(ColourAtAge(25), Red);
}

TEST_F(ZebraStroke, BandsBeginAtMultiplesOf10)
{
    EXPECT_EQ(ColourAtAge(0), Red);
    EXPECT_EQ(ColourAtAge(9), Red);
    EXPECT_EQ(ColourAtAge(10), White);
    EXPECT_EQ(ColourAtAge(19), White);
    EXPECT_EQ(ColourAtAge(20), Red);
    EXPECT_EQ(ColourAtAge(99), White);
}

TEST_F(ZebraStroke, NegativeAgesAreCutTowardZero)
{
    EXPECT_EQ(ColourAtAge(-1), Red);
    EXPECT_EQ(ColourAtAge(-9), Red);
    EXPECT_EQ(ColourAtAge(-10), White);
    EXPECT_EQ(ColourAtAge(-19), White);
    EXPECT_EQ(ColourAtAge(-20), Red);
}

TEST_F(ZebraStroke, OnLightInkAlternatesWithBlack)
{
    Set([](Params& params) { params.inkColor = 0x00C0FFFF; });
    EXPECT_EQ(ColourAtAge(15), Black);
}

TEST_F(ZebraStroke, AnyFlagButZeroIsOn)
{
    Set([](Params& params) { params.zebraMode = 2; });
    EXPECT_EQ(ColourAtAge(15), White);
}

TEST_F(ZebraStroke, EachSegmentHasItsOwnAge)
{
    AddAt(10, {120, 220});
    AddAt(12, {130, 230});
    MoveClock(14);
    EXPECT_EQ(Drawn(), (Calls{Segment(10, White), DrawLine({110, 210}, {120, 220}, 10, White),
                              DrawLine({120, 220}, {130, 230}, 10, Red)}));
}

TEST_F(ZebraStroke, OutlineStaysInTheContrastColour)
{
    Set([](Params& params) { params.outline = 1; });
    MoveClock(5);
    EXPECT_EQ(Drawn(), (Calls{Segment(12, White), Segment(10, Red)}));
    MoveClock(15);
    EXPECT_EQ(Drawn(), (Calls{Segment(12, White), Segment(10, White)}));
}

} // namespace
} // namespace zq::LM::test
