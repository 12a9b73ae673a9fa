// The part of a line that lies in a rectangle.
#include "ink/clip_line.h"

#include <gtest/gtest.h>

#include <limits>

namespace lumora_pen {
namespace {

constexpr Bounds Area = {0, 0, 100, 50};

void ExpectClipped(const Line& line, const Line& expected)
{
    const auto clipped = ClipLine(line, Area);
    ASSERT_TRUE(clipped.has_value());
    EXPECT_NEAR(clipped->x1, expected.x1, 1e-6);
    EXPECT_NEAR(clipped->y1, expected.y1, 1e-6);
    EXPECT_NEAR(clipped->x2, expected.x2, 1e-6);
    EXPECT_NEAR(clipped->y2, expected.y2, 1e-6);
}

TEST(ClippedLine, InsideIsAsItWas)
{
    const auto clipped = ClipLine({0.1, 0.2, 99.7, 49.3}, Area);
    ASSERT_TRUE(clipped.has_value());
    EXPECT_EQ(clipped->x1, 0.1);
    EXPECT_EQ(clipped->y1, 0.2);
    EXPECT_EQ(clipped->x2, 99.7);
    EXPECT_EQ(clipped->y2, 49.3);
}

TEST(ClippedLine, EndsAtTheEdgesThatItCrosses)
{
    ExpectClipped({-50, 25, 150, 25}, {0, 25, 100, 25});
    ExpectClipped({150, 25, -50, 25}, {100, 25, 0, 25});
    ExpectClipped({10, -10, 10, 90}, {10, 0, 10, 50});
    ExpectClipped({-10, -10, 20, 20}, {0, 0, 20, 20});
    ExpectClipped({50, 25, 50, 1e9}, {50, 25, 50, 50});
}

TEST(ClippedLine, BesideIsNothing)
{
    EXPECT_FALSE(ClipLine({-50, 10, -1, 40}, Area));
    EXPECT_FALSE(ClipLine({101, 10, 300, 40}, Area));
    EXPECT_FALSE(ClipLine({10, -1, 90, -20}, Area));
    EXPECT_FALSE(ClipLine({10, 51, 90, 51}, Area));
    EXPECT_FALSE(ClipLine({-20, 10, 10, -20}, Area)); // past the corner
}

TEST(ClippedLine, PointIsInsideOrNot)
{
    ExpectClipped({100, 50, 100, 50}, {100, 50, 100, 50});
    EXPECT_FALSE(ClipLine({100.5, 50, 100.5, 50}, Area));
}

TEST(ClippedLine, OfHugePositionsLiesInside)
{
    const auto clipped = ClipLine({-1e15, 25, 1e15, 25}, Area);
    ASSERT_TRUE(clipped.has_value());
    EXPECT_NEAR(clipped->x1, 0, 1);
    EXPECT_NEAR(clipped->x2, 100, 1);
}

TEST(ClippedLine, OfNoNumbersIsNothing)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    const double most = std::numeric_limits<double>::max();
    EXPECT_FALSE(ClipLine({none, 1, 2, 3}, Area));
    EXPECT_FALSE(ClipLine({1, 1, 2, none}, Area));
    EXPECT_FALSE(ClipLine({1, 1, endless, 3}, Area));
    EXPECT_FALSE(ClipLine({-most, 1, most, 3}, Area));
}

} // namespace
} // namespace lumora_pen
