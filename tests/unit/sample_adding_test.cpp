// Adding pen samples: the gate, reset markers, what a stored sample keeps and the count until the next frame.
#include "support/engine_test.h"

#include <gtest/gtest.h>

namespace zq::LM::test {
namespace {

using Positions = std::vector<std::int32_t>;

class SampleAdding : public EngineTest {
protected:
    SampleAdding()
    {
        Set([](Params& params) { params.inkDecayTime = Forever; });
    }

    void HideEverything()
    {
        Set([](Params& params) { params.line = params.outline = params.cursor = params.colorPicker = 0; });
    }

    void ShowLines()
    {
        Set([](Params& params) { params.line = 1; });
    }
};

TEST_F(SampleAdding, StoreIsEmptyAtFirst)
{
    EXPECT_EQ(drawing.LivePointsNum(), 0);
    EXPECT_EQ(drawing.PenReoprtRate(), 0U);
}

TEST_F(SampleAdding, StoresNothingWhileNothingWouldBeVisible)
{
    HideEverything();
    Add({Sample({10, 20}), Sample({30, 40})});
    EXPECT_EQ(drawing.LivePointsNum(), 0);
    ShowLines();
    EXPECT_EQ(LiveX(), Positions{});
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(SampleAdding, KeepsEarlierPendingSamplesWhileNothingWouldBeVisible)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    HideEverything();
    Add({Sample({3, 1})});
    ShowLines();
    EXPECT_EQ(LiveX(), (Positions{1, 2}));
}

TEST_F(SampleAdding, ResetMarkerClearsNothingWhileNothingWouldBeVisible)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    HideEverything();
    Add({Sample({0, 1})});
    EXPECT_EQ(drawing.LivePointsNum(), 2);
    ShowLines();
    EXPECT_EQ(LiveX(), (Positions{1, 2}));
}

TEST_F(SampleAdding, EachVisibleOptionAloneLetsSamplesIn)
{
    for (std::uint8_t Params::*flag :
         {&Params::line, &Params::outline, &Params::cursor, &Params::colorPicker}) {
        Drawing fresh;
        Params params{};
        params.*flag = 1;
        fresh.SetParams(&params);
        const PenData sample = Sample({5, 5});
        fresh.AddPenDataAry(&sample, 1);
        EXPECT_EQ(fresh.LivePointsNum(), 1);
    }
}

TEST_F(SampleAdding, OptionsThatShowNothingLetNoSampleIn)
{
    HideEverything();
    Set([](Params& params) { params.usePressure = params.useOffset = params.zebraMode = 1; });
    Add({Sample({5, 5})});
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(SampleAdding, NullArrayIsIgnored)
{
    Add({Sample({1, 1})});
    drawing.AddPenDataAry(nullptr, 3);
    EXPECT_EQ(drawing.LivePointsNum(), 1);
}

TEST_F(SampleAdding, NullArrayIsIgnoredBehindTheClosedGateToo)
{
    HideEverything();
    drawing.AddPenDataAry(nullptr, 3);
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(SampleAdding, CountOfZeroIsIgnored)
{
    const PenData marker = Sample({0, 0});
    Add({Sample({1, 1})});
    drawing.AddPenDataAry(&marker, 0);
    EXPECT_EQ(drawing.LivePointsNum(), 1);
}

TEST_F(SampleAdding, XOfZeroInTheMiddleKeepsOnlyWhatFollows)
{
    Add({Sample({1, 1}), Sample({2, 1}), Sample({0, 1}), Sample({3, 1}), Sample({4, 1})});
    EXPECT_EQ(drawing.LivePointsNum(), 2);
    EXPECT_EQ(LiveX(), (Positions{3, 4}));
}

TEST_F(SampleAdding, YOfZeroInTheMiddleKeepsOnlyWhatFollows)
{
    Add({Sample({1, 1}), Sample({2, 0}), Sample({3, 1}), Sample({4, 1})});
    EXPECT_EQ(LiveX(), (Positions{3, 4}));
}

TEST_F(SampleAdding, TimeOfZeroInTheMiddleKeepsOnlyWhatFollows)
{
    PenData marker = Sample({2, 1});
    marker.time = 0;
    Add({Sample({1, 1}), marker, Sample({3, 1}), Sample({4, 1})});
    EXPECT_EQ(LiveX(), (Positions{3, 4}));
}

TEST_F(SampleAdding, ResetMarkerAtTheEndLeavesNothingPending)
{
    Add({Sample({1, 1}), Sample({2, 1}), Sample({0, 0})});
    EXPECT_EQ(drawing.LivePointsNum(), 0);
    EXPECT_EQ(LiveX(), Positions{});
}

TEST_F(SampleAdding, ResetMarkerEmptiesEarlierArraysToo)
{
    Add({Sample({1, 1})});
    Add({Sample({0, 1}), Sample({2, 1})});
    Add({Sample({3, 1})});
    EXPECT_EQ(LiveX(), (Positions{2, 3}));
}

TEST_F(SampleAdding, ResetMarkerNeverTouchesLiveSamples)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    Frame();
    Add({Sample({0, 0})});
    EXPECT_EQ(LiveX(), (Positions{1, 2}));
}

TEST_F(SampleAdding, PressureOfZeroIsNoResetMarker)
{
    Add({Sample({1, 1}), Sample({2, 1}, 0), Sample({3, 1})});
    EXPECT_EQ(LiveX(), (Positions{1, 2, 3}));
}

TEST_F(SampleAdding, NegativePositionsAreStored)
{
    Add({Sample({-1, -2}), Sample({-3, 4})});
    EXPECT_EQ(LiveX(), (Positions{-1, -3}));
}

TEST_F(SampleAdding, TimeOfReceiptReplacesTheHosts)
{
    PenData first = Sample({1, 1});
    PenData second = Sample({2, 1});
    first.time = 7;
    second.time = 0xFFFFFFFF;
    SetClock(5000);
    Add({first});
    SetClock(5010);
    Add({second});
    const std::vector<PenData> live = LiveSamples();
    ASSERT_EQ(live.size(), 2U);
    EXPECT_EQ(live[0].time, 5000U);
    EXPECT_EQ(live[1].time, 5010U);
}

TEST_F(SampleAdding, EverythingButTheTimeIsCarriedUnchanged)
{
    const PenData sent = {.time = 99,
                          .aux1 = 0xA1A1A1A1,
                          .x = -12,
                          .y = 34,
                          .aux4 = 0xA4A4A4A4,
                          .pressure = -56,
                          .aux6 = 0xA6A6A6A6,
                          .aux7 = 0xA7A7A7A7,
                          .aux8 = 0xFFFFFFFF};
    Add({sent, Sample({1, 1})});
    const std::vector<PenData> live = LiveSamples();
    ASSERT_EQ(live.size(), 2U);
    EXPECT_EQ(live[0].time, Start);
    EXPECT_EQ(live[0].aux1, sent.aux1);
    EXPECT_EQ(live[0].x, sent.x);
    EXPECT_EQ(live[0].y, sent.y);
    EXPECT_EQ(live[0].aux4, sent.aux4);
    EXPECT_EQ(live[0].pressure, sent.pressure);
    EXPECT_EQ(live[0].aux6, sent.aux6);
    EXPECT_EQ(live[0].aux7, sent.aux7);
    EXPECT_EQ(live[0].aux8, sent.aux8);
}

TEST_F(SampleAdding, HostsArrayIsNotWrittenAndNotKept)
{
    std::vector<PenData> samples = {Sample({1, 1}), Sample({2, 1})};
    drawing.AddPenDataAry(samples.data(), samples.size());
    EXPECT_EQ(samples[0].time, 1U);
    samples[0].x = samples[1].x = 77;
    samples.clear();
    samples.shrink_to_fit();
    EXPECT_EQ(LiveX(), (Positions{1, 2}));
}

TEST_F(SampleAdding, CountIsThePendingOneUntilTheNextFrame)
{
    Add({Sample({1, 1}), Sample({2, 1}), Sample({3, 1})});
    Frame();
    ASSERT_EQ(drawing.LivePointsNum(), 3);
    Add({Sample({4, 1})});
    EXPECT_EQ(drawing.LivePointsNum(), 1);
    Frame();
    EXPECT_EQ(drawing.LivePointsNum(), 4);
}

TEST_F(SampleAdding, CountIsThePendingOneUntilTheNextAgeing)
{
    Add({Sample({1, 1}), Sample({2, 1}), Sample({3, 1})});
    Frame();
    Add({Sample({4, 1})});
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 3);
}

TEST_F(SampleAdding, CountIsZeroAfterAResetMarkerThoughInkIsLive)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    Frame();
    Add({Sample({0, 1})});
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(SampleAdding, SamplesStayInTheOrderOfTheirArrival)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    Frame();
    Add({Sample({3, 1})});
    Add({Sample({4, 1}), Sample({5, 1})});
    EXPECT_EQ(LiveX(), (Positions{1, 2, 3, 4, 5}));
}

TEST_F(SampleAdding, ClearingLiveSamplesKeepsPendingOnes)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    Frame();
    Add({Sample({3, 1}), Sample({4, 1})});
    drawing.ClearLivePenData();
    EXPECT_EQ(LiveX(), (Positions{3, 4}));
}

TEST_F(SampleAdding, ClearingLiveSamplesLeavesTheCountToTheNextAgeing)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    Frame();
    drawing.ClearLivePenData();
    EXPECT_EQ(drawing.LivePointsNum(), 2);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

} // namespace
} // namespace zq::LM::test
