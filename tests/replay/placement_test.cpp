// Scaling of recordings to the screen.
#include "placement.h"

#include <gtest/gtest.h>

namespace lumora::replay {
namespace {

RecordedSample At(double x, double y) { return {x, y, 0, 0, true}; }

Recording Box(double width, double height, bool yUpwards)
{
    return {{At(0, 0), At(width, height)}, yUpwards};
}

TEST(Placement, WideRecordingFillsTheWidthUpToTheMargin)
{
    const Placement placement(Box(1000, 10, true), {1000, 500}); // the margin is 8 % of 500
    EXPECT_EQ(placement.Place(At(0, 0)).x, 40);
    EXPECT_EQ(placement.Place(At(1000, 0)).x, 960);
}

TEST(Placement, TallRecordingFillsTheHeightUpToTheMargin)
{
    const Placement placement(Box(10, 1000, true), {1000, 500});
    EXPECT_EQ(placement.Place(At(0, 1000)).y, 40);
    EXPECT_EQ(placement.Place(At(0, 0)).y, 460);
}

TEST(Placement, AspectIsKept)
{
    const Placement placement(Box(920, 100, true), {1000, 500});
    EXPECT_EQ(placement.Place(At(0, 0)).y - placement.Place(At(0, 100)).y, 100);
}

TEST(Placement, PixelsStayWhereTheyAre)
{
    const Placement upwards = Placement::OfPixels(true, {501, 333});
    EXPECT_EQ(upwards.Place(At(120, -45)).x, 120);
    EXPECT_EQ(upwards.Place(At(120, -45)).y, 45);
    const Placement downwards = Placement::OfPixels(false, {501, 333});
    EXPECT_EQ(downwards.Place(At(120, 45)).x, 120);
    EXPECT_EQ(downwards.Place(At(120, 45)).y, 45);
}

TEST(Placement, PixelsBeyondTheScreenComeToItsEdge)
{
    EXPECT_EQ(Placement::OfPixels(false, {500, 300}).Place(At(900, -10)).x, 499);
    EXPECT_EQ(Placement::OfPixels(false, {500, 300}).Place(At(900, -10)).y, 1);
}

TEST(Placement, UpwardYIsFlipped)
{
    const Placement placement(Box(100, 100, true), {500, 500});
    EXPECT_LT(placement.Place(At(0, 100)).y, placement.Place(At(0, 0)).y);
}

TEST(Placement, DownwardYIsNotFlipped)
{
    const Placement placement(Box(100, 100, false), {500, 500});
    EXPECT_GT(placement.Place(At(0, 100)).y, placement.Place(At(0, 0)).y);
}

TEST(Placement, RecordingIsCentred)
{
    const Placement placement(Box(100, 40, true), {600, 400});
    EXPECT_EQ(placement.Place(At(50, 20)).x, 300);
    EXPECT_EQ(placement.Place(At(50, 20)).y, 200);
}

TEST(Placement, SinglePointLiesInTheMiddle)
{
    const Placement placement({{At(7, 7)}, true}, {600, 400});
    EXPECT_EQ(placement.Place(At(7, 7)).x, 300);
    EXPECT_EQ(placement.Place(At(7, 7)).y, 200);
}

TEST(Placement, FlatLineIsScaledByItsWidth)
{
    const Placement placement({{At(0, 5), At(100, 5)}, true}, {600, 400});
    EXPECT_EQ(placement.Place(At(0, 5)).x, 32);
    EXPECT_EQ(placement.Place(At(100, 5)).x, 568);
    EXPECT_EQ(placement.Place(At(0, 5)).y, 200);
}

TEST(Placement, RecordingInPartsOfAUnitFillsTheScreenToo)
{
    const Placement placement(Box(0.5, 0.001, true), {1000, 500});
    EXPECT_EQ(placement.Place(At(0, 0)).x, 40);
    EXPECT_EQ(placement.Place(At(0.5, 0)).x, 960);
}

TEST(Placement, PositionsOffTheScreenAreMovedOntoIt)
{
    const Placement placement(Box(100, 100, true), {500, 400});
    EXPECT_EQ(placement.Place(At(-100000, 100000)).x, 1);
    EXPECT_EQ(placement.Place(At(-100000, 100000)).y, 1);
    EXPECT_EQ(placement.Place(At(100000, -100000)).x, 499);
    EXPECT_EQ(placement.Place(At(100000, -100000)).y, 399);
}

TEST(Placement, NothingIsPlacedAtZeroOnAScreenOfOnePixel)
{
    const Placement placement(Box(100, 100, true), {1, 1});
    EXPECT_EQ(placement.Place(At(0, 0)).x, 1);
    EXPECT_EQ(placement.Place(At(0, 0)).y, 1);
}

TEST(Placement, WidestPossibleRecordingStaysOnTheScreen)
{
    const double least = -MaxPosition;
    const double most = MaxPosition;
    const Placement placement({{At(least, least), At(most, most)}, true}, {1000, 500});
    EXPECT_EQ(placement.Place(At(least, least)).y, 460);
    EXPECT_EQ(placement.Place(At(most, most)).y, 40);
}

TEST(Placement, EmptyRecordingIsHarmless)
{
    const Placement placement({}, {600, 400});
    EXPECT_EQ(placement.Place(At(0, 0)).x, 300);
}

} // namespace
} // namespace lumora::replay
