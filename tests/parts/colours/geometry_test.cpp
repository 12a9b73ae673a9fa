// Markers of the colour picker, and the colours that its points stand for.
#include "settings/colour_geometry.h"

#include <gtest/gtest.h>

#include <iterator>
#include <limits>
#include <ostream>

namespace zq::LM {

void PrintTo(const PixelPoint& point, std::ostream* out) { *out << "(" << point.x << ", " << point.y << ")"; }

namespace {

constexpr WheelPlace Wheel = {{60, 70}, 50};

void ExpectHueAndSaturation(PixelPoint point, double hue, double saturation)
{
    const Hsv colour = ColourAtWheelPoint(point, Wheel, 77);
    EXPECT_EQ(colour.hue, hue);
    EXPECT_EQ(colour.saturation, saturation);
    EXPECT_EQ(colour.value, 77);
}

TEST(WheelIn, LiesInTheMiddleWithAMarginOfTenPixelsAndHalvesOddSizesDownward)
{
    EXPECT_EQ(WheelIn(120, 140).centre, (PixelPoint{60, 70}));
    EXPECT_EQ(WheelIn(120, 140).radius, 50);
    EXPECT_EQ(WheelIn(141, 121).centre, (PixelPoint{70, 60}));
    EXPECT_EQ(WheelIn(141, 121).radius, 50);
    EXPECT_EQ(WheelIn(21, 100).radius, 0);
    EXPECT_EQ(WheelIn(0, 0).radius, -10);
}

TEST(ColourAtWheelPoint, TheHueGrowsClockwiseFromTheRight)
{
    ExpectHueAndSaturation({60 + 25, 70}, 0, 127); // 127.5, truncated
    ExpectHueAndSaturation({60, 70 + 25}, 90, 127);
    ExpectHueAndSaturation({60 - 25, 70}, 180, 127);
    ExpectHueAndSaturation({60, 70 - 25}, 270, 127);
}

TEST(ColourAtWheelPoint, TheHueIsAWholeDegreeTruncatedTowardZeroFromBothSides)
{
    ExpectHueAndSaturation({60 + 10, 70 + 1}, 5, 51);   // 5.7 degrees
    ExpectHueAndSaturation({60 + 10, 70 - 1}, 355, 51); // -5.7
    EXPECT_EQ(WholeDegrees(100, -1), 0);                // -0.57 truncates to 0 and is not negative
    EXPECT_EQ(WholeDegrees(100, 1), 0);
}

TEST(ColourAtWheelPoint, TheSaturationGrowsFromTheCentreAndIsFullFromTheRimOn)
{
    ExpectHueAndSaturation(Wheel.centre, 0, 0);
    ExpectHueAndSaturation({60 + 49, 70}, 0, 249); // 249.9
    ExpectHueAndSaturation({60 + 50, 70}, 0, 255);
    ExpectHueAndSaturation({60 + 400, 70}, 0, 255);
    ExpectHueAndSaturation({0, 0}, 230, 255); // -130.6 degrees
    EXPECT_EQ(ColourAtWheelPoint({30'000, 30'000}, Wheel, 0).saturation, 255);
    EXPECT_EQ(ColourAtWheelPoint({50'000, 0}, Wheel, 0).saturation, 255); // the sum of squares wraps
}

TEST(ColourAtWheelPoint, WithoutAWheelTheSaturationIsFullEverywhere)
{
    for (const int radius : {0, -1, -10}) {
        for (const PixelPoint point : {PixelPoint{0, 0}, PixelPoint{3, 4}, PixelPoint{-2, 0}}) {
            EXPECT_EQ(ColourAtWheelPoint(point, {{0, 0}, radius}, 0).saturation, 255) << radius;
        }
    }
}

TEST(ValueAtColumn, RunsFromBlackToWhiteBetweenTheMarginsAndStaysSoBesideThem)
{
    const int columns[] = {-500, 0, 16, 66, 115, 116, 131, 5'000};
    const double values[] = {0, 0, 0, 127, 252, 255, 255, 255}; // of 127.5 and 252.45 the whole part
    for (std::size_t i = 0; i < std::size(columns); ++i) {
        EXPECT_EQ(ValueAtColumn(columns[i], 132), values[i]) << columns[i];
    }
}

TEST(ValueAtColumn, WithoutAGradientItIsBlack)
{
    for (const int width : {0, 1, 30, 31, 32}) {
        for (const int x : {-1, 0, 15, 16, 17, 100}) {
            EXPECT_EQ(ValueAtColumn(x, width), 0) << width << " " << x;
        }
    }
    EXPECT_EQ(ValueAtColumn(16, 33), 0);
    EXPECT_EQ(ValueAtColumn(17, 33), 255);
}

TEST(WheelMarker, StandsAtTheColour)
{
    EXPECT_EQ(WheelMarker({0, 0, 255}, Wheel), Wheel.centre);
    EXPECT_EQ(WheelMarker({0, 255, 255}, Wheel), (PixelPoint{110, 70}));
    EXPECT_EQ(WheelMarker({180, 255, 255}, Wheel), (PixelPoint{10, 70}));
    EXPECT_EQ(WheelMarker({45, 255, 255}, Wheel), (PixelPoint{95, 105})); // 35.36 each way, truncated
    EXPECT_EQ(WheelMarker({225, 255, 0}, Wheel), (PixelPoint{24, 34}));   // as a whole, not its offset
}

TEST(WheelMarker, WithoutAWheelOrANumberIsHarmless)
{
    EXPECT_EQ(WheelMarker({0, 255, 255}, {{5, 5}, 0}), (PixelPoint{5, 5}));
    EXPECT_EQ(WheelMarker({0, 255, 255}, {{5, 5}, -5}), (PixelPoint{0, 5}));
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(WheelMarker({none, none, none}, Wheel), (PixelPoint{0, 0}));
}

TEST(ValueMarkerColumn, StandsOnTheGradientOrNearTheMargin)
{
    EXPECT_EQ(ValueMarkerColumn(0, 132), 16);
    EXPECT_EQ(ValueMarkerColumn(32, 132), 28); // 12.55, truncated
    EXPECT_EQ(ValueMarkerColumn(255, 132), 116);
    EXPECT_EQ(ValueMarkerColumn(255, 32), 16);
    EXPECT_EQ(ValueMarkerColumn(255, 0), -16);
    EXPECT_EQ(ValueMarkerColumn(std::numeric_limits<double>::quiet_NaN(), 132), 16);
}

} // namespace
} // namespace zq::LM
