// Pen samples from recordings: pressures, stroke ends and the values that the library takes for a reset.
#include "strokes.h"

#include <gmock/gmock.h>

namespace lumora::replay {
namespace {

using testing::ElementsAre;

RecordedSample Touch(double time, double pressure = 500) { return {10, 10, time, pressure, true}; }
RecordedSample Hover(double time, double pressure = 0) { return {20, 20, time, pressure, false}; }

std::vector<TimedSample> Make(const std::vector<RecordedSample>& samples)
{
    const Recording recording = {samples, true};
    return MakePenSamples(recording, Placement(recording, {600, 400}));
}

std::vector<std::int32_t> Pressures(const std::vector<RecordedSample>& samples)
{
    std::vector<std::int32_t> pressures;
    for (const TimedSample& sample : Make(samples)) {
        pressures.push_back(sample.data.pressure);
    }
    return pressures;
}

TEST(Strokes, PressureIsHandedOnUnchanged)
{
    EXPECT_THAT(Pressures({Touch(1, 22634), Hover(9)}), ElementsAre(22634, 0));
}

TEST(Strokes, HoveringSampleHasNoPressureWhateverWasRecorded)
{
    EXPECT_THAT(Pressures({Hover(1, 900)}), ElementsAre(0));
}

TEST(Strokes, TouchingSampleHasPressureEvenIfNoneWasRecorded)
{
    EXPECT_THAT(Pressures({Touch(1, 0), Hover(9)}), ElementsAre(1, 0));
}

TEST(Strokes, StrokeAtTheEndOfTheRecordingIsEnded)
{
    EXPECT_THAT(Pressures({Touch(1), Touch(8)}), ElementsAre(500, 500, 0));
}

TEST(Strokes, StrokeThatAHoveringSampleEndsGetsNoOther)
{
    EXPECT_THAT(Pressures({Touch(1), Hover(8), Touch(16), Hover(24)}), ElementsAre(500, 0, 500, 0));
}

TEST(Strokes, LongGapBetweenTouchingSamplesEndsTheStroke)
{
    EXPECT_THAT(Pressures({Touch(1), Touch(1 + StrokeGapMs + 1), Hover(2000)}), ElementsAre(500, 0, 500, 0));
}

TEST(Strokes, GapOfExactlyTheLimitDoesNotEndTheStroke)
{
    EXPECT_THAT(Pressures({Touch(1), Touch(1 + StrokeGapMs), Hover(2000)}), ElementsAre(500, 500, 0));
}

TEST(Strokes, AddedEndHasPositionAndTimeOfTheLastTouch)
{
    const auto made = Make({Hover(100), Touch(107)});
    ASSERT_EQ(made.size(), 3U);
    EXPECT_EQ(made[2].recordedTime, 7);
    EXPECT_EQ(made[2].data.time, made[1].data.time);
    EXPECT_EQ(made[2].data.x, made[1].data.x);
    EXPECT_EQ(made[2].data.y, made[1].data.y);
}

TEST(Strokes, TimesCountFromTheFirstSample)
{
    const auto made = Make({Hover(5000), Hover(5008)});
    EXPECT_EQ(made[0].recordedTime, 0);
    EXPECT_EQ(made[1].recordedTime, 8);
}

TEST(Strokes, TimeZeroBecomesOne) { EXPECT_EQ(Make({Hover(0)})[0].data.time, 1U); }

TEST(Strokes, RecordedTimeIsHandedOn) { EXPECT_EQ(Make({Hover(354642400)})[0].data.time, 354642400U); }

TEST(Strokes, WideRangeOfTimesDoesNotWrap)
{
    const auto made = Make({Hover(0), Hover(4294967295.0)});
    EXPECT_EQ(made[1].recordedTime, 4294967295.0);
}

TEST(Strokes, PartsOfAMillisecondAreKeptForTheTimeline)
{
    const auto made = Make({Hover(10.25), Hover(17.75)});
    EXPECT_EQ(made[1].recordedTime, 7.5);
    EXPECT_EQ(made[1].data.time, 17U);
}

TEST(Strokes, TimeBeyond32BitsWrapsForTheLibrary)
{
    EXPECT_EQ(Make({Hover(4294967296.0 + 5)})[0].data.time, 5U);
}

TEST(Strokes, TimeThatWrapsToZeroBecomesOne) { EXPECT_EQ(Make({Hover(4294967296.0)})[0].data.time, 1U); }

TEST(Strokes, PressureIsRounded)
{
    EXPECT_THAT(Pressures({Touch(1, 16383.5), Hover(9)}), ElementsAre(16384, 0));
}

TEST(Strokes, FaintTouchStillTouches)
{
    EXPECT_THAT(Pressures({Touch(1, 0.2), Hover(9)}), ElementsAre(1, 0));
}

TEST(Strokes, EmptyRecordingHasNoSamples) { EXPECT_TRUE(Make({}).empty()); }

} // namespace
} // namespace lumora::replay
