// The pen's way in a measurement: each step has a pixel of its own.
#include "latency/pen_path.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <set>
#include <utility>

namespace lumora::latency {

namespace {

TEST(PenPath, StepsLieOnTheScreen)
{
    for (std::uint32_t number = 0; number < 4096; ++number) {
        const PenStep step = StepAt(number, 1024, 768);
        for (const Place place : {step.from, step.to, step.watched}) {
            EXPECT_TRUE(place.x > 0 && place.x < 1024 && place.y > 0 && place.y < 768) << number;
        }
    }
}

TEST(PenPath, EachStepGoesOnWhereTheOneBeforeEndedOrBeginsARow)
{
    for (std::uint32_t number = 1; number < 4096; ++number) {
        const PenStep before = StepAt(number - 1, 1024, 768);
        const PenStep step = StepAt(number, 1024, 768);
        if (step.beginsRow) {
            EXPECT_NE(step.from.y, before.to.y) << number;
        } else {
            EXPECT_TRUE(step.from.x == before.to.x && step.from.y == before.to.y) << number;
        }
    }
}

TEST(PenPath, FirstStepBeginsARow) { EXPECT_TRUE(StepAt(0, 1024, 768).beginsRow); }

// Half a step is more than the ink's half width, caps and the smoothing of edges.
TEST(PenPath, WatchedPixelIsFarFromBothEndsAndFromOtherRows)
{
    constexpr int FarEnough = 8;
    for (std::uint32_t number = 0; number < 500; ++number) {
        const PenStep step = StepAt(number, 1024, 768);
        EXPECT_EQ(step.watched.y, step.from.y);
        EXPECT_GE(step.watched.x - step.from.x, FarEnough);
        EXPECT_GE(step.to.x - step.watched.x, FarEnough);
        const PenStep row = StepAt(number + 40, 1024, 768);
        EXPECT_TRUE(row.from.y == step.from.y || std::abs(row.from.y - step.from.y) >= 2 * FarEnough);
    }
}

// A life of half a second at 200 Hz is 100 samples.
TEST(PenPath, PlaceComesAgainOnlyAfterItsInkHasGone)
{
    std::set<std::pair<int, int>> seen;
    for (std::uint32_t number = 0; number < 400; ++number) {
        const PenStep step = StepAt(number, 1024, 768);
        EXPECT_TRUE(seen.insert({step.watched.x, step.watched.y}).second) << number;
    }
}

TEST(PenPath, AScreenOfAPostageStampHasOneStep)
{
    const PenStep step = StepAt(7, 10, 10);
    EXPECT_TRUE(step.beginsRow);
    EXPECT_EQ(step.from.x, StepAt(0, 10, 10).from.x);
}

} // namespace

} // namespace lumora::latency
