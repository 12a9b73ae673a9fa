// What runs in turns say about two participants.
#include "latency/pairs.h"

#include <gmock/gmock.h>

#include <numeric>

namespace lumora::latency {

namespace {

std::vector<double> OneTo(int last)
{
    std::vector<double> values(static_cast<std::size_t>(last));
    std::iota(values.rbegin(), values.rend(), 1.0); // the largest first
    return values;
}

TEST(Distribution, IsByNearestRank)
{
    const Distribution distribution = DistributionOf(OneTo(100));
    EXPECT_EQ(distribution.count, 100U);
    EXPECT_EQ(distribution.p5, 5);
    EXPECT_EQ(distribution.median, 50);
    EXPECT_EQ(distribution.p95, 95);
}

TEST(Distribution, OfOneIsThatOne)
{
    const Distribution distribution = DistributionOf({7});
    EXPECT_EQ(distribution.p5, 7);
    EXPECT_EQ(distribution.median, 7);
    EXPECT_EQ(distribution.p95, 7);
}

TEST(Distribution, OfNothingIsEmpty) { EXPECT_EQ(DistributionOf({}).count, 0U); }

TEST(RatioOfTwo, IsHowManyTimesAsLongTheFirstTakes)
{
    const Ratio ratio = RatioOf({10, 2, 6, 9}, {10, 4, 4, 5});
    EXPECT_EQ(ratio.median, 1.5);
    EXPECT_EQ(ratio.p5, 0.5);
}

TEST(RatioOfTwo, IsNoneWhereTheSecondHasNothing) { EXPECT_EQ(RatioOf({1, 1, 1, 1}, {}).median, 0); }

TEST(MedianOfRuns, TakesEachFigureOnItsOwn)
{
    const Ratio ratio = MedianOf({{1.0, 0.9}, {3.0, 0.7}, {2.0, 0.8}});
    EXPECT_EQ(ratio.median, 2.0);
    EXPECT_EQ(ratio.p5, 0.8);
}

TEST(MedianOfRuns, OfNoneIsNone) { EXPECT_EQ(MedianOf({}).median, 0); }

} // namespace

} // namespace lumora::latency
