// Ageing: which samples outlive their ink, and what a clock that runs backwards does.
#include "support/engine_test.h"

#include <gtest/gtest.h>

namespace zq::LM::test {
namespace {

using Positions = std::vector<std::int32_t>;

class SampleAgeing : public EngineTest {
protected:
    // Live samples, the first with x 1, received at these times after the start.
    void MakeLive(std::initializer_list<std::int32_t> times)
    {
        const Params before = Record();
        Set([](Params& params) { params.inkDecayTime = Forever; });
        for (const std::int32_t time : times) {
            ++samples;
            AddAt(time, {samples, 1});
        }
        Frame();
        drawing.SetParams(&before);
    }

    // What ageing at that time leaves, at least two samples.
    Positions LeftAt(std::int32_t time)
    {
        MoveClock(time);
        drawing.DeleteOldPenData();
        Set([](Params& params) { params.inkDecayTime = Forever; });
        return LiveX();
    }

    std::int32_t samples = 0;
};

TEST_F(SampleAgeing, RemovesOnlyTheLeadingRunOfOldSamples)
{
    MakeLive({0, 30, 60, 20}); // ages 150, 120, 90, 130
    EXPECT_EQ(LeftAt(150), (Positions{3, 4}));
    EXPECT_EQ(drawing.LivePointsNum(), 2);
}

TEST_F(SampleAgeing, SampleLivesUntilItsAgeIsTheInkLife)
{
    MakeLive({0, 1, 2});
    EXPECT_EQ(LeftAt(99), (Positions{1, 2, 3}));
}

TEST_F(SampleAgeing, SampleAsOldAsTheInkLifeIsRemoved)
{
    MakeLive({0, 1, 2});
    EXPECT_EQ(LeftAt(100), (Positions{2, 3}));
}

TEST_F(SampleAgeing, LifeOfZeroRemovesEverySample)
{
    MakeLive({0, 5, 10});
    Set([](Params& params) { params.inkDecayTime = 0; });
    MoveClock(10);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(SampleAgeing, LifeOfZeroKeepsSamplesOfTheFuture)
{
    MakeLive({0, 11, 12});
    Set([](Params& params) { params.inkDecayTime = 0; });
    EXPECT_EQ(LeftAt(10), (Positions{2, 3}));
}

TEST_F(SampleAgeing, LongestLifeIsUnsigned)
{
    Set([](Params& params) { params.inkDecayTime = 0x80000000; });
    MakeLive({0, 1});
    EXPECT_EQ(LeftAt(1000), (Positions{1, 2}));
}

TEST_F(SampleAgeing, SampleOfTheFutureIsYoungAndGuardsThoseBehindIt)
{
    MakeLive({500, 0, 0});
    EXPECT_EQ(LeftAt(400), (Positions{1, 2, 3}));
}

TEST_F(SampleAgeing, OldSampleBeforeOneOfTheFutureIsRemoved)
{
    MakeLive({0, 500, 0});
    EXPECT_EQ(LeftAt(400), (Positions{2, 3}));
}

TEST_F(SampleAgeing, ClockThatWrappedMakesSamplesYoung)
{
    SetClock(0xFFFFFFF0);
    Add({Sample({1, 1}), Sample({2, 1})});
    SetClock(0xFFFFFFFF);
    Frame();
    SetClock(500);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 2);
}

TEST_F(SampleAgeing, ClockThatWrappedDoesNotAgeAcrossTheWrap)
{
    // A plain difference: the sample before the wrap is in the future, the one behind it stays too.
    SetClock(0xFFFFFFF0);
    Add({Sample({1, 1})});
    SetClock(5);
    Add({Sample({2, 1})});
    Frame();
    SetClock(5 + 1000);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 2);
}

TEST_F(SampleAgeing, AgeAbove31BitsIsOld)
{
    SetClock(1);
    Add({Sample({1, 1})});
    Set([](Params& params) { params.inkDecayTime = 0x7FFFFFFF; });
    SetClock(0xFFFFFFFF);
    Frame();
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(SampleAgeing, PendingSamplesDoNotAge)
{
    Add({Sample({1, 1}), Sample({2, 1})});
    EXPECT_EQ(LeftAt(5000), (Positions{1, 2}));
}

TEST_F(SampleAgeing, EmptyLiveSetMakesTheCountZero)
{
    Add({Sample({1, 1})});
    ASSERT_EQ(drawing.LivePointsNum(), 1);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(SampleAgeing, CountFollowsEachRemoval)
{
    MakeLive({0, 10, 20});
    MoveClock(105);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 2);
    MoveClock(115);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 1);
    MoveClock(125);
    drawing.DeleteOldPenData();
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

TEST_F(SampleAgeing, UsesTheInkLifeOfTheMoment)
{
    MakeLive({0, 1, 2});
    Set([](Params& params) { params.inkDecayTime = 50; });
    EXPECT_EQ(LeftAt(50), (Positions{2, 3}));
}

TEST_F(SampleAgeing, FrameRemovesOldSamplesBeforeItDraws)
{
    MakeLive({0, 1});
    MoveClock(200);
    EXPECT_EQ(Drawn(), Calls{});
    EXPECT_EQ(drawing.LivePointsNum(), 0);
}

} // namespace
} // namespace zq::LM::test
