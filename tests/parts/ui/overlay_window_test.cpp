// What the overlay window computes by itself.
#include "ui/overlay_window.h"

#include <gtest/gtest.h>

namespace zq::LM {

namespace {

TEST(ClassNumber, IsCountedInSixteenBits)
{
    EXPECT_EQ(ClassNumberAfter(0), 1U);
    EXPECT_EQ(ClassNumberAfter(0xFFFE), 0xFFFFU);
    EXPECT_EQ(ClassNumberAfter(0xFFFF), 0U);
}

TEST(PixelDensityTest, IsThatOfTheShellsLowerRightCorner)
{
    const PixelDensity density = DensityOf({200, 60, 840, 540}, 400, 300);
    EXPECT_DOUBLE_EQ(density.x, 2.1);
    EXPECT_DOUBLE_EQ(density.y, 1.8);
}

TEST(PixelDensityTest, IsOneWhereTheDeviceDoesNotKnowItsSize)
{
    const PixelDensity withoutWidth = DensityOf({200, 60, 840, 540}, 0, 300);
    EXPECT_DOUBLE_EQ(withoutWidth.x, 1.0);
    EXPECT_DOUBLE_EQ(withoutWidth.y, 1.8);
    const PixelDensity withoutHeight = DensityOf({200, 60, 840, 540}, 400, -1);
    EXPECT_DOUBLE_EQ(withoutHeight.x, 2.1);
    EXPECT_DOUBLE_EQ(withoutHeight.y, 1.0);
}

} // namespace

} // namespace zq::LM
