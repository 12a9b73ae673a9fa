// The pen report rate: samples per second over the span of the live set.
#include "support/engine_test.h"

#include <gtest/gtest.h>

namespace zq::LM::test {
namespace {

class ReportRate : public EngineTest {
protected:
    std::uint32_t OfSamplesAt(std::initializer_list<std::int32_t> times)
    {
        for (const std::int32_t time : times) {
            AddAt(time, {10, 10});
        }
        Frame();
        return drawing.PenReoprtRate();
    }
};

TEST_F(ReportRate, OfTwoSamples5MillisecondsApartIs400) { EXPECT_EQ(OfSamplesAt({0, 5}), 400U); }

TEST_F(ReportRate, DividesAllSamplesByTheIntervalsBetweenThem)
{
    // 5 samples over 4 intervals of 5 ms: 250, not 200.
    EXPECT_EQ(OfSamplesAt({0, 5, 10, 15, 20}), 250U);
}

TEST_F(ReportRate, IsCutToAWholeNumber) { EXPECT_EQ(OfSamplesAt({0, 3, 7}), 428U); }

TEST_F(ReportRate, OfEqualTimesIsZero) { EXPECT_EQ(OfSamplesAt({0, 0, 0}), 0U); }

TEST_F(ReportRate, OfOneSampleIsZero) { EXPECT_EQ(OfSamplesAt({0}), 0U); }

TEST_F(ReportRate, OfTimesThatRunBackwardsIsZero) { EXPECT_EQ(OfSamplesAt({50, 20}), 0U); }

TEST_F(ReportRate, LooksAtTheFirstAndTheLastSampleOnly) { EXPECT_EQ(OfSamplesAt({0, 90, 10}), 300U); }

TEST_F(ReportRate, OfLongSpansCanBeZero)
{
    Set([](Params& params) { params.inkDecayTime = Forever; });
    EXPECT_EQ(OfSamplesAt({0, 2001}), 0U);
}

TEST_F(ReportRate, SpanAbove31BitsIsPositive)
{
    SetClock(1);
    Add(std::vector<PenData>(5000, Sample({1, 1})));
    SetClock(0x80000001);
    Add({Sample({1, 1})});
    Set([](Params& params) { params.inkDecayTime = Forever; });
    Frame();
    EXPECT_EQ(drawing.PenReoprtRate(), 0U); // 5001000 / 2147483648
}

TEST_F(ReportRate, IsMeasuredBeforeOldSamplesGo)
{
    AddAt(0, {10, 10});
    AddAt(5, {10, 10});
    MoveClock(1000);
    Frame();
    EXPECT_EQ(drawing.LivePointsNum(), 0);
    EXPECT_EQ(drawing.PenReoprtRate(), 400U);
}

TEST_F(ReportRate, FallsToZeroInTheFrameAfterTheLastSampleWent)
{
    OfSamplesAt({0, 5});
    MoveClock(1000);
    Frame();
    Frame();
    EXPECT_EQ(drawing.PenReoprtRate(), 0U);
}

TEST_F(ReportRate, StaysBetweenFrames)
{
    ASSERT_EQ(OfSamplesAt({0, 5}), 400U);
    AddAt(6, {10, 10});
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.PenReoprtRate(), 400U);
}

TEST_F(ReportRate, CountsSamplesThatHover)
{
    AddAt(0, {10, 10}, Hovering);
    AddAt(10, {10, 10}, Hovering);
    Frame();
    EXPECT_EQ(drawing.PenReoprtRate(), 200U);
}

TEST_F(ReportRate, DoesNotMeasureAcrossTheClocksWrap)
{
    SetClock(0xFFFFFFFF);
    Add({Sample({1, 1})});
    SetClock(4);
    Add({Sample({1, 1})});
    Frame();
    EXPECT_EQ(drawing.PenReoprtRate(), 0U);
}

} // namespace
} // namespace zq::LM::test
