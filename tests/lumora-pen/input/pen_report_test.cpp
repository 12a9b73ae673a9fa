#include "input/pen_report.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumora_pen {
namespace {

constexpr PixelRectangle First = {0, 0, 1920, 1080};
constexpr PixelRectangle Right = {1920, 0, 5760, 2160}; // twice the scaling, so twice the pixels
constexpr PixelRectangle Left = {-1280, 0, 0, 1024};

// An opaque tablet, and the pens of two displays.
constexpr PenRanges Intuos = {{0, 44704}, {0, 27940}, {0, 2047}};
constexpr PenRanges NTrig = {{0, 9600}, {0, 7200}, {0, 256}};
constexpr PenRanges ActiveES = {{0, 29376}, {0, 16524}, {0, 4095}};

PenReport Touch(std::int32_t x, std::int32_t y, std::int32_t pressure)
{
    PenReport report;
    report.x = x;
    report.y = y;
    report.pressure = pressure;
    report.isInRange = true;
    report.touches = true;
    return report;
}

PenReport Hover(std::int32_t x, std::int32_t y)
{
    PenReport report = Touch(x, y, 0);
    report.touches = false;
    return report;
}

InputSample Placed(const PenReport& report, const PenRanges& ranges, const PenPlace& place)
{
    const auto sample = PenReports().Take(report, ranges, place, 77);
    EXPECT_TRUE(sample);
    return sample.value_or(InputSample{});
}

struct PlaceCase {
    const char* name;
    PenRanges ranges;
    PixelRectangle display;
    std::int32_t reportedX;
    std::int32_t reportedY;
    double x;
    double y;
};

class Places : public testing::TestWithParam<PlaceCase> {};

TEST_P(Places, AreThoseComputedByHand)
{
    const PlaceCase& wanted = GetParam();
    const InputSample sample =
        Placed(Touch(wanted.reportedX, wanted.reportedY, 1), wanted.ranges, {wanted.display, Turn::None});
    EXPECT_DOUBLE_EQ(sample.x, wanted.x);
    EXPECT_DOUBLE_EQ(sample.y, wanted.y);
    EXPECT_EQ(sample.time, 77U);
}

// The first pixel and a share of the way to the last one: a half of 1919 is 959.5, a quarter of 3839 is
// 959.75.
INSTANTIATE_TEST_SUITE_P(
    , Places,
    testing::Values(PlaceCase{"IntuosBeginsAtTheFirst", Intuos, First, 0, 0, 0, 0},
                    PlaceCase{"IntuosEndsAtTheFirst", Intuos, First, 44704, 27940, 1919, 1079},
                    PlaceCase{"IntuosHalfOfTheFirst", Intuos, First, 22352, 13970, 959.5, 539.5},
                    PlaceCase{"IntuosQuarterOfTheRight", Intuos, Right, 11176, 20955, 2879.75, 1619.25},
                    PlaceCase{"IntuosHalfOfTheLeft", Intuos, Left, 22352, 13970, -640.5, 511.5},
                    PlaceCase{"NTrigBeginsAtTheRight", NTrig, Right, 0, 0, 1920, 0},
                    PlaceCase{"NTrigEndsAtTheRight", NTrig, Right, 9600, 7200, 5759, 2159},
                    PlaceCase{"NTrigQuarterOfTheRight", NTrig, Right, 2400, 5400, 2879.75, 1619.25},
                    PlaceCase{"NTrigHalfOfTheFirst", NTrig, First, 4800, 3600, 959.5, 539.5},
                    PlaceCase{"NTrigQuarterOfTheLeft", NTrig, Left, 2400, 1800, -960.25, 255.75},
                    PlaceCase{"ActiveESBeginsAtTheLeft", ActiveES, Left, 0, 0, -1280, 0},
                    PlaceCase{"ActiveESEndsAtTheLeft", ActiveES, Left, 29376, 16524, -1, 1023},
                    PlaceCase{"ActiveESHalfOfTheLeft", ActiveES, Left, 14688, 4131, -640.5, 255.75},
                    PlaceCase{"ActiveESHalfOfTheRight", ActiveES, Right, 14688, 8262, 3839.5, 1079.5},
                    PlaceCase{"ActiveESQuarterOfTheFirst", ActiveES, First, 7344, 4131, 479.75, 269.75}),
    [](const auto& info) { return info.param.name; });

TEST(PenReports, PressureFillsTheFullRange)
{
    const PenPlace place = {First, Turn::None};
    EXPECT_EQ(Placed(Touch(1, 1, 2047), Intuos, place).pressure, FullPressure);
    EXPECT_EQ(Placed(Touch(1, 1, 4095), ActiveES, place).pressure, FullPressure);
    EXPECT_EQ(Placed(Touch(1, 1, 64), NTrig, place).pressure, 8192);       // 8191.75
    EXPECT_EQ(Placed(Touch(1, 1, 1365), ActiveES, place).pressure, 10922); // a third: 10922.33
    EXPECT_EQ(Placed(Touch(1, 1, 1), ActiveES, place).pressure, 8);
}

TEST(PenReports, PressureThatDoesNotBeginAtZeroIsAShareToo)
{
    const PenRanges ranges = {{0, 100}, {0, 100}, {-100, 300}};
    EXPECT_EQ(Placed(Touch(1, 1, 0), ranges, {First, Turn::None}).pressure, 8192);
    EXPECT_EQ(Placed(Touch(1, 1, 300), ranges, {First, Turn::None}).pressure, FullPressure);
}

TEST(PenReports, TouchIsNeverWithoutPressure)
{
    EXPECT_EQ(Placed(Touch(1, 1, 0), ActiveES, {First, Turn::None}).pressure, 1);
    EXPECT_EQ(Placed(Touch(1, 1, -5), ActiveES, {First, Turn::None}).pressure, 1);
}

TEST(PenReports, PressureBeyondTheRangeIsFull)
{
    EXPECT_EQ(Placed(Touch(1, 1, 5000), ActiveES, {First, Turn::None}).pressure, FullPressure);
}

TEST(PenReports, PenWithoutPressureWritesAtFull)
{
    PenReport report = Touch(1, 1, 0);
    report.pressure.reset();
    EXPECT_EQ(Placed(report, ActiveES, {First, Turn::None}).pressure, FullPressure);
}

TEST(PenReports, PressureOfNoRangeIsNone)
{
    EXPECT_EQ(Placed(Touch(1, 1, 3), {{0, 9}, {0, 9}, {7, 7}}, {First, Turn::None}).pressure, FullPressure);
}

TEST(PenReports, HoveringPenHasNoPressure)
{
    PenReport report = Hover(1, 1);
    report.pressure = 900; // some report it without a touch
    EXPECT_EQ(Placed(report, ActiveES, {First, Turn::None}).pressure, 0);
}

TEST(PenReports, EraserDoesNotWrite)
{
    PenReport report = Touch(1, 1, 900);
    report.isInverted = true;
    EXPECT_EQ(Placed(report, ActiveES, {First, Turn::None}).pressure, 0);
}

TEST(PenReports, PlaceOutsideOfTheRangeIsAtItsEdge)
{
    const InputSample sample = Placed(Touch(-10, 30000, 1), ActiveES, {Left, Turn::None});
    EXPECT_EQ(sample.x, -1280);
    EXPECT_EQ(sample.y, 1023);
}

TEST(PenReports, RangesMayBeSignedAndAsWideAsTheyCanBe)
{
    constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
    const PenRanges ranges = {{-1000, 1000}, {Least, Most}, {Least, Most}};
    const InputSample middle = Placed(Touch(0, 0, Most), ranges, {First, Turn::None});
    EXPECT_DOUBLE_EQ(middle.x, 959.5);
    EXPECT_NEAR(middle.y, 539.5, 1e-6);
    EXPECT_EQ(middle.pressure, FullPressure);
    const InputSample end = Placed(Touch(1000, Most, Least), ranges, {First, Turn::None});
    EXPECT_EQ(end.x, 1919);
    EXPECT_EQ(end.y, 1079);
    EXPECT_EQ(end.pressure, 1);
}

TEST(PenReports, ReversedOrEmptyRangesCannotBeRead)
{
    for (const LogicalRange& range : {LogicalRange{0, 0}, LogicalRange{100, 0}, LogicalRange{5, 5}}) {
        PenReports reports;
        EXPECT_FALSE(reports.Take(Touch(1, 1, 1), {range, {0, 9}, {0, 9}}, {First, Turn::None}, 1));
        EXPECT_FALSE(reports.Take(Touch(1, 1, 1), {{0, 9}, range, {0, 9}}, {First, Turn::None}, 1));
        EXPECT_FALSE(reports.IsInRange());
    }
}

TEST(PenReports, DisplayOfNoSizeHasNoPlaces)
{
    EXPECT_FALSE(PenReports().Take(Touch(1, 1, 1), ActiveES, {{5, 5, 5, 9}, Turn::None}, 1));
    EXPECT_FALSE(PenReports().Take(Touch(1, 1, 1), ActiveES, {{5, 5, 9, 4}, Turn::None}, 1));
}

// A quarter to the right and a tenth down on the digitizer.
TEST(PenReports, TurnedDisplayTurnsThePlacesWithIt)
{
    const PenRanges ranges = {{0, 100}, {0, 100}, {0, 1}};
    const PixelRectangle upright = {0, 0, 1001, 2001};
    const PenReport report = Touch(25, 10, 1);
    const InputSample none = Placed(report, ranges, {upright, Turn::None});
    EXPECT_DOUBLE_EQ(none.x, 250);
    EXPECT_DOUBLE_EQ(none.y, 200);
    const InputSample quarter = Placed(report, ranges, {upright, Turn::Quarter});
    EXPECT_DOUBLE_EQ(quarter.x, 900);
    EXPECT_DOUBLE_EQ(quarter.y, 500);
    const InputSample half = Placed(report, ranges, {upright, Turn::Half});
    EXPECT_DOUBLE_EQ(half.x, 750);
    EXPECT_DOUBLE_EQ(half.y, 1800);
    const InputSample rest = Placed(report, ranges, {upright, Turn::ThreeQuarters});
    EXPECT_DOUBLE_EQ(rest.x, 100);
    EXPECT_DOUBLE_EQ(rest.y, 1500);
}

class PenStrokes : public testing::Test {
protected:
    std::optional<InputSample> Take(const PenReport& report, std::uint32_t time)
    {
        return reports.Take(report, ActiveES, {First, Turn::None}, time);
    }

    PenReports reports;
};

TEST_F(PenStrokes, LiftedTipIsASampleWithoutPressure)
{
    Take(Touch(0, 0, 100), 1);
    const auto lifted = Take(Hover(29376, 16524), 2);
    ASSERT_TRUE(lifted);
    EXPECT_EQ(lifted->pressure, 0);
    EXPECT_EQ(lifted->x, 1919);
    EXPECT_TRUE(reports.IsInRange());
}

TEST_F(PenStrokes, PenThatLeavesTheRangeEndsWhereItWas)
{
    Take(Touch(29376, 0, 100), 1);
    const auto left = Take(PenReport{0, 0, 0, false, false, false}, 5);
    ASSERT_TRUE(left);
    EXPECT_EQ(left->x, 1919);
    EXPECT_EQ(left->pressure, 0);
    EXPECT_EQ(left->time, 5U);
    EXPECT_FALSE(reports.IsInRange());
    EXPECT_FALSE(Take(PenReport{0, 0, 0, false, false, false}, 6));
}

TEST_F(PenStrokes, PenThatWasNeverInRangeSaysNothing)
{
    EXPECT_FALSE(Take(PenReport{5, 5, 0, false, false, false}, 1));
    EXPECT_FALSE(reports.Leave(1));
}

TEST_F(PenStrokes, TouchCountsWhereInRangeIsForgotten)
{
    PenReport report = Touch(1, 1, 4095);
    report.isInRange = false;
    const auto sample = Take(report, 1);
    ASSERT_TRUE(sample);
    EXPECT_EQ(sample->pressure, FullPressure);
}

TEST_F(PenStrokes, UnpluggedPenEndsItsStrokeOnce)
{
    Take(Touch(0, 16524, 100), 1);
    const auto left = reports.Leave(9);
    ASSERT_TRUE(left);
    EXPECT_EQ(left->y, 1079);
    EXPECT_EQ(left->pressure, 0);
    EXPECT_EQ(left->time, 9U);
    EXPECT_FALSE(reports.Leave(10));
}

TEST_F(PenStrokes, ReportWithoutAPlaceKeepsTheLastOne)
{
    PenReport blind = Touch(0, 0, 4095);
    blind.x.reset();
    EXPECT_FALSE(Take(blind, 1));
    Take(Touch(29376, 16524, 1), 2);
    const auto sample = Take(blind, 3);
    ASSERT_TRUE(sample);
    EXPECT_EQ(sample->x, 1919);
    EXPECT_EQ(sample->pressure, FullPressure);
}

TEST(LogicalRanges, LostSignIsGivenBack)
{
    EXPECT_EQ(RangeOf(0, -1, 16).most, 65535);
    EXPECT_EQ(RangeOf(0, -1, 8).most, 255);
    EXPECT_EQ(RangeOf(0, -15536, 16).most, 50000);
    EXPECT_EQ(RangeOf(-5, -1, 16).most, -1);
    EXPECT_EQ(RangeOf(0, 29376, 16).most, 29376);
    EXPECT_EQ(RangeOf(10, 5, 16).most, 5);
    EXPECT_EQ(RangeOf(0, -1, 32).most, -1);
}

TEST(LogicalRanges, SignOfAValueIsThatOfItsBits)
{
    EXPECT_EQ(ValueOf(0xFFFF, 16, {-32768, 32767}), -1);
    EXPECT_EQ(ValueOf(0x8000, 16, {-32768, 32767}), -32768);
    EXPECT_EQ(ValueOf(0x7FFF, 16, {-32768, 32767}), 32767);
    EXPECT_EQ(ValueOf(0xFFFF, 16, {0, 65535}), 65535);
    EXPECT_EQ(ValueOf(0x3FF, 10, {-512, 511}), -1);
    EXPECT_EQ(ValueOf(0xFC05, 10, {0, 1023}), 5); // what lies above its bits is not its own
    EXPECT_EQ(ValueOf(0xFFFFFFFF, 32, {-5, 5}), -1);
    EXPECT_EQ(ValueOf(1, 1, {0, 1}), 1);
}

} // namespace
} // namespace lumora_pen
