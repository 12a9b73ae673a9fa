// Conversions of doubles to 32-bit integers.
#include "ink/truncation.h"

#include <gtest/gtest.h>

#include <limits>

namespace zq::LM {
namespace {

constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();

TEST(TruncateToUnsigned, CutsTheFraction)
{
    EXPECT_EQ(TruncateToUnsigned(0.999), 0U);
    EXPECT_EQ(TruncateToUnsigned(1.0), 1U);
    EXPECT_EQ(TruncateToUnsigned(5.5002), 5U);
    EXPECT_EQ(TruncateToUnsigned(4294967294.9), 0xFFFFFFFEU);
}

TEST(TruncateToUnsigned, SaturatesAbove)
{
    EXPECT_EQ(TruncateToUnsigned(4294967295.0), 0xFFFFFFFFU);
    EXPECT_EQ(TruncateToUnsigned(4294967295.5), 0xFFFFFFFFU);
    EXPECT_EQ(TruncateToUnsigned(4294967296.0), 0xFFFFFFFFU);
    EXPECT_EQ(TruncateToUnsigned(1e300), 0xFFFFFFFFU);
    EXPECT_EQ(TruncateToUnsigned(Infinity), 0xFFFFFFFFU);
}

TEST(TruncateToUnsigned, GivesZeroBelow)
{
    EXPECT_EQ(TruncateToUnsigned(-0.0), 0U);
    EXPECT_EQ(TruncateToUnsigned(-0.5), 0U);
    EXPECT_EQ(TruncateToUnsigned(-1e300), 0U);
    EXPECT_EQ(TruncateToUnsigned(-Infinity), 0U);
}

TEST(TruncateToUnsigned, GivesZeroForNotANumber) { EXPECT_EQ(TruncateToUnsigned(NotANumber), 0U); }

TEST(TruncateToSigned, CutsTowardZero)
{
    EXPECT_EQ(TruncateToSigned(1.9), 1);
    EXPECT_EQ(TruncateToSigned(-1.9), -1);
    EXPECT_EQ(TruncateToSigned(0.9), 0);
    EXPECT_EQ(TruncateToSigned(-0.9), 0);
}

TEST(TruncateToSigned, SaturatesAbove)
{
    EXPECT_EQ(TruncateToSigned(2147483646.9), Most - 1);
    EXPECT_EQ(TruncateToSigned(2147483647.0), Most);
    EXPECT_EQ(TruncateToSigned(2147483647.5), Most);
    EXPECT_EQ(TruncateToSigned(2147483648.0), Most);
    EXPECT_EQ(TruncateToSigned(Infinity), Most);
}

TEST(TruncateToSigned, SaturatesBelow)
{
    EXPECT_EQ(TruncateToSigned(-2147483647.9), Least + 1);
    EXPECT_EQ(TruncateToSigned(-2147483648.0), Least);
    EXPECT_EQ(TruncateToSigned(-2147483648.5), Least);
    EXPECT_EQ(TruncateToSigned(-1e300), Least);
    EXPECT_EQ(TruncateToSigned(-Infinity), Least);
}

TEST(TruncateToSigned, GivesZeroForNotANumber) { EXPECT_EQ(TruncateToSigned(NotANumber), 0); }

} // namespace
} // namespace zq::LM
