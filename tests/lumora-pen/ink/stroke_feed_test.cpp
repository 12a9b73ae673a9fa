// Strokes as the library wants them.
#include "ink/stroke_feed.h"

#include <gmock/gmock.h>

namespace lumora_pen {

namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

constexpr Source Pen = 7;

std::vector<std::int32_t> PressuresOf(const StrokeSteps& steps)
{
    std::vector<std::int32_t> pressures;
    for (const InputSample& sample : steps.samples) {
        pressures.push_back(sample.pressure);
    }
    return pressures;
}

TEST(StrokeFeed, TapIsALineFromPointToPointThatEnds)
{
    StrokeFeed feed;
    const auto steps = feed.Take({Pen, {{5, 6, 100, 1}, {5, 6, 0, 2}}});
    EXPECT_THAT(PressuresOf(steps), ElementsAre(100, 100, 0));
    EXPECT_TRUE(steps.begins);
    EXPECT_TRUE(steps.ends);
    EXPECT_FALSE(feed.IsWriting());
}

TEST(StrokeFeed, StrokeGoesOnOverSeveralBatches)
{
    StrokeFeed feed;
    EXPECT_TRUE(feed.Take({Pen, {{1, 1, 100, 1}}}).begins);
    EXPECT_TRUE(feed.IsWriting());
    const auto steps = feed.Take({Pen, {{2, 1, 100, 2}, {3, 1, 90, 3}}});
    EXPECT_THAT(PressuresOf(steps), ElementsAre(100, 90));
    EXPECT_FALSE(steps.begins);
    EXPECT_FALSE(steps.ends);
}

TEST(StrokeFeed, HoverIsLeftOutUnlessWanted)
{
    StrokeFeed feed;
    EXPECT_THAT(feed.Take({Pen, {{1, 1, 0, 1}}}).samples, IsEmpty());
    feed.SetHover(true);
    EXPECT_THAT(PressuresOf(feed.Take({Pen, {{1, 1, 0, 1}}})), ElementsAre(0));
}

TEST(StrokeFeed, LiftIsToldOnceThoughHoverFollows)
{
    StrokeFeed feed;
    feed.Take({Pen, {{1, 1, 100, 1}}});
    EXPECT_THAT(PressuresOf(feed.Take({Pen, {{1, 1, 0, 2}, {2, 1, 0, 3}}})), ElementsAre(0));
}

TEST(StrokeFeed, AnotherWriterIsLeftOutUntilTheFirstHasEnded)
{
    StrokeFeed feed;
    feed.Take({Pen, {{1, 1, 100, 1}}});
    EXPECT_THAT(feed.Take({Mouse, {{50, 50, 100, 2}}}).samples, IsEmpty());
    EXPECT_THAT(feed.Take({Mouse, {{50, 50, 0, 2}}}).samples, IsEmpty()) << "nor does it end the stroke";
    EXPECT_TRUE(feed.IsWriting());
    feed.Take({Pen, {{1, 1, 0, 3}}});
    EXPECT_TRUE(feed.Take({Mouse, {{50, 50, 100, 4}}}).begins);
}

TEST(StrokeFeed, CancelEndsTheStrokeWhereItIs)
{
    StrokeFeed feed;
    feed.Take({Pen, {{8, 9, 100, 1}}});
    const auto steps = feed.Take({Pen, {}, true});
    EXPECT_THAT(steps.samples, ElementsAre(Field(&InputSample::x, 8)));
    EXPECT_THAT(PressuresOf(steps), ElementsAre(0));
    EXPECT_TRUE(steps.ends);
    EXPECT_TRUE(steps.isCancelled);
    EXPECT_FALSE(feed.IsWriting());
}

TEST(StrokeFeed, CancelThatLiftsThePenItselfLiftsItOnce)
{
    StrokeFeed feed;
    feed.Take({Pen, {{8, 9, 100, 1}}});
    const auto steps = feed.Take({Pen, {{8, 9, 0, 2}}, true});
    EXPECT_THAT(PressuresOf(steps), ElementsAre(0));
    EXPECT_TRUE(steps.isCancelled);
}

TEST(StrokeFeed, CancelOfNothingIsNothing)
{
    StrokeFeed feed;
    const auto steps = feed.Take({Pen, {}, true});
    EXPECT_THAT(steps.samples, IsEmpty());
    EXPECT_FALSE(steps.ends);
    EXPECT_FALSE(steps.isCancelled);
}

TEST(StrokeFeed, CancelOfAnotherLeavesTheStroke)
{
    StrokeFeed feed;
    feed.Take({Pen, {{8, 9, 100, 1}}});
    feed.Take({Mouse, {}, true});
    EXPECT_TRUE(feed.IsWriting());
}

TEST(StrokeFeed, EndFromOutsideLiftsThePenAndIsToldOnce)
{
    StrokeFeed feed;
    feed.Take({Pen, {{8, 9, 100, 1}}});
    const auto steps = feed.End(44);
    EXPECT_THAT(PressuresOf(steps), ElementsAre(0));
    EXPECT_EQ(steps.samples[0].time, 44U);
    EXPECT_TRUE(steps.ends);
    EXPECT_THAT(feed.End(45).samples, IsEmpty());
}

TEST(StrokeFeed, RestingPenIsToldOnceMoreWithItsPressure)
{
    StrokeFeed feed;
    EXPECT_THAT(feed.Rest(1).samples, IsEmpty());
    feed.Take({Pen, {{8, 9, 77, 1}}});
    const auto steps = feed.Rest(50);
    EXPECT_THAT(PressuresOf(steps), ElementsAre(77));
    EXPECT_EQ(steps.samples[0].time, 50U);
    EXPECT_TRUE(feed.IsWriting());
}

} // namespace

} // namespace lumora_pen
