// Which samples are due when.
#include "timeline.h"

#include <gtest/gtest.h>

namespace lumora::replay {
namespace {

TimedSample At(std::uint32_t time)
{
    TimedSample sample;
    sample.recordedTime = time;
    sample.data.x = static_cast<std::int32_t>(time) + 1;
    return sample;
}

TEST(Timeline, FirstSampleIsDueAtOnce)
{
    Timeline timeline({At(0), At(8)}, 1);
    EXPECT_EQ(timeline.TakeDue(0).size(), 1U);
}

TEST(Timeline, AllSamplesSinceTheLastBatchComeInOne)
{
    Timeline timeline({At(0), At(8), At(15), At(23)}, 1);
    timeline.TakeDue(0);
    const auto due = timeline.TakeDue(15);
    ASSERT_EQ(due.size(), 2U);
    EXPECT_EQ(due[0].x, 9);
    EXPECT_EQ(due[1].x, 16);
}

TEST(Timeline, NothingIsTakenTwice)
{
    Timeline timeline({At(0), At(8)}, 1);
    timeline.TakeDue(5);
    EXPECT_TRUE(timeline.TakeDue(5).empty());
}

TEST(Timeline, SampleIsNotDueBeforeItsTime)
{
    Timeline timeline({At(0), At(8)}, 1);
    EXPECT_EQ(timeline.TakeDue(7.999).size(), 1U);
}

TEST(Timeline, DoubleSpeedHalvesTheTimes)
{
    Timeline timeline({At(0), At(8)}, 2);
    timeline.TakeDue(0);
    EXPECT_EQ(timeline.NextDueMs(), 4.0);
    EXPECT_EQ(timeline.EndMs(), 4.0);
}

TEST(Timeline, HalfSpeedDoublesTheTimes) { EXPECT_EQ(Timeline({At(0), At(8)}, 0.5).EndMs(), 16.0); }

TEST(Timeline, LongPausesAreKept) { EXPECT_EQ(Timeline({At(0), At(60000)}, 1).EndMs(), 60000.0); }

TEST(Timeline, NothingIsNextAfterTheLastSample)
{
    Timeline timeline({At(0)}, 1);
    timeline.TakeDue(0);
    EXPECT_EQ(timeline.NextDueMs(), std::nullopt);
}

TEST(Timeline, EmptyTimelineIsAtItsEnd)
{
    Timeline timeline({}, 1);
    EXPECT_EQ(timeline.NextDueMs(), std::nullopt);
    EXPECT_TRUE(timeline.TakeDue(100).empty());
    EXPECT_EQ(timeline.EndMs(), 0.0);
}

} // namespace
} // namespace lumora::replay
