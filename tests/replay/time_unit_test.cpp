// The units of times, and the guess at one.
#include "time_unit.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumora::replay {
namespace {

// Samples with the same step between any two.
std::vector<RecordedSample> Every(double step, std::size_t count)
{
    std::vector<RecordedSample> samples(count);
    for (std::size_t i = 0; i < count; ++i) {
        samples[i].time = 1000 + step * static_cast<double>(i);
    }
    return samples;
}

TEST(TimeUnits, SecondsBecomeMilliseconds) { EXPECT_EQ(ToMilliseconds(1.25, TimeUnit::Seconds), 1250); }

TEST(TimeUnits, SecondsKeepNoRoundingErrors) { EXPECT_EQ(ToMilliseconds(1.001, TimeUnit::Seconds), 1001); }

TEST(TimeUnits, MillisecondsStay) { EXPECT_EQ(ToMilliseconds(1.25, TimeUnit::Milliseconds), 1.25); }

TEST(TimeUnits, MicrosecondsBecomeMilliseconds)
{
    EXPECT_EQ(ToMilliseconds(7500, TimeUnit::Microseconds), 7.5);
}

TEST(TimeUnitGuess, OneSampleIsInMilliseconds)
{
    EXPECT_EQ(GuessTimeUnit(Every(8, 1)), TimeUnit::Milliseconds);
}

TEST(TimeUnitGuess, NoSampleIsInMilliseconds) { EXPECT_EQ(GuessTimeUnit({}), TimeUnit::Milliseconds); }

TEST(TimeUnitGuess, EqualTimesAreInMilliseconds)
{
    EXPECT_EQ(GuessTimeUnit(Every(0, 20)), TimeUnit::Milliseconds);
}

TEST(TimeUnitGuess, StepsBelowAFifthAreSeconds)
{
    EXPECT_EQ(GuessTimeUnit(Every(0.19, 20)), TimeUnit::Seconds);
    EXPECT_EQ(GuessTimeUnit(Every(0.21, 20)), TimeUnit::Milliseconds);
}

TEST(TimeUnitGuess, StepsOf500AndMoreAreMicroseconds)
{
    EXPECT_EQ(GuessTimeUnit(Every(499, 20)), TimeUnit::Milliseconds);
    EXPECT_EQ(GuessTimeUnit(Every(500, 20)), TimeUnit::Microseconds);
}

TEST(TimeUnitGuess, FewLongStepsAreMilliseconds)
{
    EXPECT_EQ(GuessTimeUnit(Every(7500, 10)), TimeUnit::Milliseconds);
    EXPECT_EQ(GuessTimeUnit(Every(7500, 11)), TimeUnit::Microseconds);
}

TEST(TimeUnitGuess, PausesDoNotCount)
{
    std::vector<RecordedSample> samples = Every(0.0075, 21);
    for (std::size_t i = 10; i < samples.size(); ++i) {
        samples[i].time += 3600;
    }
    EXPECT_EQ(GuessTimeUnit(samples), TimeUnit::Seconds);
}

// Not even the middle step would tell them apart: it is 0 in both.
TEST(TimeUnitGuess, CoarseClocksAreSeenThrough)
{
    std::vector<RecordedSample> wholeSeconds = Every(0, 400);
    std::vector<RecordedSample> sixteenths = wholeSeconds;
    for (std::size_t i = 0; i < wholeSeconds.size(); ++i) {
        wholeSeconds[i].time = std::floor(static_cast<double>(i) / 133);
        sixteenths[i].time = std::floor(static_cast<double>(i) / 3) * 16;
    }
    EXPECT_EQ(GuessTimeUnit(wholeSeconds), TimeUnit::Seconds);
    EXPECT_EQ(GuessTimeUnit(sixteenths), TimeUnit::Milliseconds);
}

} // namespace
} // namespace lumora::replay
