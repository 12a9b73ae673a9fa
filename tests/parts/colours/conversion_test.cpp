// Colours between red, green, blue and hue, saturation, value.
#include "settings/colour_conversion.h"

#include <gtest/gtest.h>

#include <limits>

namespace zq::LM {
namespace {

void ExpectHsv(std::uint32_t reference, double hue, double saturation, double value)
{
    const Hsv colour = HsvFromRgb(RgbFromReference(reference));
    EXPECT_DOUBLE_EQ(colour.hue, hue);
    EXPECT_DOUBLE_EQ(colour.saturation, saturation);
    EXPECT_DOUBLE_EQ(colour.value, value);
}

void ExpectRgb(const Hsv& colour, double red, double green, double blue)
{
    const Rgb result = RgbFromHsv(colour);
    EXPECT_DOUBLE_EQ(result.red, red);
    EXPECT_DOUBLE_EQ(result.green, green);
    EXPECT_DOUBLE_EQ(result.blue, blue);
}

TEST(HsvFromRgb, GreyHasNeitherHueNorSaturation)
{
    ExpectHsv(0x00000000, 0, 0, 0);
    ExpectHsv(0x00202020, 0, 0, 32);
    ExpectHsv(0x00FFFFFF, 0, 0, 255);
}

TEST(HsvFromRgb, TheHueGoesOnceAroundAndOfASharedMaximumRedDecidesThenGreen)
{
    ExpectHsv(0x000000FF, 0, 255, 255);
    ExpectHsv(0x0000FFFF, 60, 255, 255); // red and green
    ExpectHsv(0x0000FF00, 120, 255, 255);
    ExpectHsv(0x00FFFF00, 180, 255, 255); // green and blue
    ExpectHsv(0x00FF0000, 240, 255, 255);
    ExpectHsv(0x00FF00FF, 300, 255, 255); // red and blue: -60 and a full circle
    ExpectHsv(RoundedReference({200, 50, 100}), -50.0 * 60 / 150 + 360, 150.0 * 255 / 200, 200);
}

TEST(HsvFromRgb, IsNotRounded)
{
    const Hsv colour = HsvFromRgb({255, 1, 0});
    EXPECT_NEAR(colour.hue, 60.0 / 255, 1e-12);
    EXPECT_DOUBLE_EQ(colour.saturation, 255);
}

TEST(RgbFromHsv, EachSectorHasItsOrderOfChannels)
{
    const double s = 127.5;
    const double v = 200;
    const double low = 100;
    const double middle = 150; // halfway through each sector
    ExpectRgb({30, s, v}, v, middle, low);
    ExpectRgb({90, s, v}, middle, v, low);
    ExpectRgb({150, s, v}, low, v, middle);
    ExpectRgb({210, s, v}, low, middle, v);
    ExpectRgb({270, s, v}, middle, low, v);
    ExpectRgb({330, s, v}, v, low, middle);
}

TEST(RgbFromHsv, TheSectorComesFromTheWholeDegree)
{
    // 59.999 is still in the first sector, whose third channel is the lowest.
    const Rgb colour = RgbFromHsv({59.999, 255, 255});
    EXPECT_DOUBLE_EQ(colour.red, 255);
    EXPECT_NEAR(colour.green, 255 * 59.999 / 60, 1e-9);
    EXPECT_DOUBLE_EQ(colour.blue, 0);
}

TEST(RgbFromHsv, WithoutSaturationEveryHueIsTheSameGrey)
{
    for (double hue = 0; hue < 360; hue += 7.5) {
        ExpectRgb({hue, 0, 90}, 90, 90, 90);
    }
}

TEST(RgbFromHsv, BelowTheFirstSectorIsBlackAndAboveTheLastTheSectorsRepeatNotTheirFraction)
{
    ExpectRgb({-60, 255, 255}, 0, 0, 0);
    ExpectRgb({-300, 255, 255}, 0, 0, 0);
    ExpectRgb({390, 255, 255}, 255, 6.5 * 255, 0); // sector 0 again, and 390 / 60 less 0
}

TEST(RgbFromHsv, AHueThatIsNoNumberOrEndlessIsHarmless)
{
    for (const double hue :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
          -std::numeric_limits<double>::infinity(), 1e300}) {
        static_cast<void>(TruncatedReference(RgbFromHsv({hue, 255, 255})));
    }
    const double none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(TruncatedReference({none, none, none}), 0U);
}

TEST(ColourReference, HasRedInTheLowByteAndNothingOnTop)
{
    const Rgb colour = RgbFromReference(0xFF332211);
    EXPECT_EQ(colour.red, 0x11);
    EXPECT_EQ(colour.green, 0x22);
    EXPECT_EQ(colour.blue, 0x33);
    EXPECT_EQ(RoundedReference(colour), 0x00332211U);
    EXPECT_EQ(TruncatedReference(colour), 0x00332211U);
}

TEST(ColourReference, IsRoundedOrTruncatedAndHeldWithinAByte)
{
    EXPECT_EQ(RoundedReference({1.4, 1.5, 254.6}), 0x00FF0201U);
    EXPECT_EQ(TruncatedReference({1.4, 1.5, 254.6}), 0x00FE0101U);
    EXPECT_EQ(RoundedReference({-3, 255.9, 1e30}), 0x00FFFF00U);
    EXPECT_EQ(TruncatedReference({-1e30, 256, 300}), 0x00FFFF00U);
}

TEST(ColourConversions, EveryColourComesBackFromARoundTrip)
{
    constexpr double MostSaturation = 255 + 1e-12; // the last bit may lie above
    std::uint32_t changed = 0;
    std::uint32_t outside = 0;
    for (std::uint32_t reference = 0; reference <= 0x00FFFFFF; ++reference) {
        const Hsv colour = HsvFromRgb(RgbFromReference(reference));
        changed += RoundedReference(RgbFromHsv(colour)) != reference ? 1 : 0;
        const bool within = colour.hue >= 0 && colour.hue < 360 && colour.saturation >= 0 &&
                            colour.saturation <= MostSaturation && colour.value >= 0 && colour.value <= 255;
        outside += within ? 0 : 1;
    }
    EXPECT_EQ(changed, 0U);
    EXPECT_EQ(outside, 0U);
}

} // namespace
} // namespace zq::LM
