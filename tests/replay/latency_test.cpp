// Percentiles and the summary line.
#include "latency.h"

#include <gtest/gtest.h>

#include <numeric>

namespace lumora::replay {
namespace {

std::vector<double> OneTo(std::size_t count)
{
    std::vector<double> values(count);
    std::iota(values.begin(), values.end(), 1.0);
    return values;
}

TEST(NearestRank, OfOneValueIsThatValue) { EXPECT_EQ(NearestRank({7.0}, 99), 7.0); }

TEST(NearestRank, MedianOfAnEvenNumberIsTheLowerMiddle) { EXPECT_EQ(NearestRank(OneTo(4), 50), 2.0); }

TEST(NearestRank, MedianOfAnOddNumberIsTheMiddle) { EXPECT_EQ(NearestRank(OneTo(5), 50), 3.0); }

TEST(NearestRank, Rank95Of100IsThe95th) { EXPECT_EQ(NearestRank(OneTo(100), 95), 95.0); }

TEST(NearestRank, Rank95Of101IsThe96th) { EXPECT_EQ(NearestRank(OneTo(101), 95), 96.0); }

TEST(NearestRank, Rank99Of10IsTheLast) { EXPECT_EQ(NearestRank(OneTo(10), 99), 10.0); }

TEST(NearestRank, RankZeroIsTheFirst) { EXPECT_EQ(NearestRank(OneTo(10), 0), 1.0); }

TEST(LatencySummary, IsTakenFromUnsortedValues)
{
    const LatencySummary summary = Summarise({3, 1, 2});
    EXPECT_EQ(summary.count, 3U);
    EXPECT_EQ(summary.min, 1.0);
    EXPECT_EQ(summary.median, 2.0);
    EXPECT_EQ(summary.p95, 3.0);
    EXPECT_EQ(summary.p99, 3.0);
    EXPECT_EQ(summary.max, 3.0);
}

TEST(LatencySummary, OfNothingHasCountZero) { EXPECT_EQ(Summarise({}).count, 0U); }

TEST(LatencyLine, HasThreeDecimals)
{
    EXPECT_EQ(Describe({2, 0.25, 0.25, 1, 1, 1.23456}),
              "latency from pen input to painted ink, ms: n 2, min 0.250, "
              "median 0.250, p95 1.000, p99 1.000, max 1.235");
}

TEST(LatencyLine, OfNothingHasNoFigures)
{
    EXPECT_EQ(Describe({}), "latency from pen input to painted ink, ms: n 0");
}

} // namespace
} // namespace lumora::replay
