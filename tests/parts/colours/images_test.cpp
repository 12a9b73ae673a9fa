// The pixels of the wheel and the value bar, compared whole with a computation of the test's own.
#include "settings/colour_images.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

namespace zq::LM {
namespace {

using Colour = std::array<int, 3>; // red, green, blue

constexpr std::uint8_t Untouched = 0x5A;
constexpr std::uint8_t Guard = 0xC3;
constexpr std::size_t GuardBytes = 16;

// A bitmap between two guards.
class TestBitmap {
public:
    TestBitmap(int width, int height)
        : width(width), height(height), size(static_cast<std::size_t>(height) *
                                             ((3 * static_cast<std::size_t>(width) + 3) & ~std::size_t{3})),
          memory(size + 2 * GuardBytes, Guard)
    {
        std::fill_n(memory.begin() + GuardBytes, size, Untouched);
    }

    BitmapPixels Pixels() { return {std::span(memory).subspan(GuardBytes, size), width, height}; }

    // From the top.
    Colour At(int x, int y) const
    {
        const std::size_t row = size / static_cast<std::size_t>(height);
        const std::size_t first =
            GuardBytes + static_cast<std::size_t>(height - 1 - y) * row + 3 * static_cast<std::size_t>(x);
        return {memory[first + 2], memory[first + 1], memory[first]};
    }

    bool GuardsAreWhole() const
    {
        for (std::size_t i = 0; i < GuardBytes; ++i) {
            if (memory[i] != Guard || memory[memory.size() - 1 - i] != Guard) {
                return false;
            }
        }
        return true;
    }

private:
    int width;
    int height;
    std::size_t size;
    std::vector<std::uint8_t> memory;
};

struct Size {
    int width;
    int height;
};

std::string Name(const ::testing::TestParamInfo<Size>& info)
{
    return std::to_string(info.param.width) + "x" + std::to_string(info.param.height);
}

Colour Grey(int grey) { return {grey, grey, grey}; }

// A hexagon of piecewise linear ramps: another way to the same colour at full value.
double Ramp(double hue, double saturation, double peak)
{
    double away = std::fabs(hue - peak);
    away = std::fmin(away, 360 - away);
    const double share = std::fmin(1.0, std::fmax(0.0, 2 - away / 60));
    return 255 * (1 - saturation / 255 * (1 - share));
}

// Unrounded, so that a test can see where a last bit may decide.
std::array<double, 3> ExpectedWheel(int x, int y, const Size& size)
{
    const int left = size.width / 2;
    const int top = size.height / 2;
    const int radius = std::min(left, top) - 10;
    const double distance = std::hypot(x - left, y - top);
    if (distance >= radius) {
        return {240, 240, 240};
    }
    double angle = std::trunc(std::atan2(y - top, x - left) / std::numbers::pi * 180);
    angle += angle < 0 ? 360 : 0;
    const double saturation = 255 * distance / radius;
    std::array<double, 3> channels = {Ramp(angle, saturation, 0), Ramp(angle, saturation, 120),
                                      Ramp(angle, saturation, 240)};
    const double cover = std::fmin(1.0, radius - distance);
    for (double& channel : channels) {
        channel = channel * cover + 240 * (1 - cover);
    }
    return channels;
}

class ValueBarPicture : public ::testing::TestWithParam<Size> {};

TEST_P(ValueBarPicture, HasTheGradientInItsFrame)
{
    const auto [width, height] = GetParam();
    TestBitmap bitmap(width, height);
    PaintValueBar(bitmap.Pixels());
    EXPECT_TRUE(bitmap.GuardsAreWhole());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const bool edgeLine = y == 0 || y == height - 1;
            int grey = 240;
            if (x == 15 || x == width - 16 || (edgeLine && x > 15 && x < width - 16)) {
                grey = 128;
            } else if (x > 15 && x < width - 16) {
                grey = static_cast<int>(std::floor(255.0 * (x - 16) / (width - 32)));
            }
            ASSERT_EQ(bitmap.At(x, y), Grey(grey)) << x << ", " << y;
        }
    }
}

// Also around the width at which the frame and the gradient begin.
INSTANTIATE_TEST_SUITE_P(Sizes, ValueBarPicture,
                         ::testing::Values(Size{1, 1}, Size{15, 3}, Size{16, 4}, Size{17, 2}, Size{30, 5},
                                           Size{31, 5}, Size{32, 5}, Size{33, 5}, Size{34, 1}, Size{34, 2},
                                           Size{126, 22}, Size{127, 17}, Size{288, 40}),
                         Name);

class WheelPicture : public ::testing::TestWithParam<Size> {};

TEST_P(WheelPicture, IsTheDiscOfHueAndSaturation)
{
    const auto size = GetParam();
    TestBitmap bitmap(size.width, size.height);
    PaintWheel(bitmap.Pixels());
    EXPECT_TRUE(bitmap.GuardsAreWhole());
    int coloured = 0;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const Colour painted = bitmap.At(x, y);
            const std::array<double, 3> expected = ExpectedWheel(x, y, size);
            coloured += painted != Grey(240) ? 1 : 0;
            for (std::size_t i = 0; i < expected.size(); ++i) {
                // Truncated; where the exact channel is whole, the last bit of either way decides.
                constexpr double LastBits = 1e-9;
                ASSERT_GE(painted[i], std::floor(expected[i] - LastBits)) << x << ", " << y;
                ASSERT_LE(painted[i], std::floor(expected[i] + LastBits)) << x << ", " << y;
            }
        }
    }
    EXPECT_EQ(coloured > 0, std::min(size.width / 2, size.height / 2) > 10);
}

INSTANTIATE_TEST_SUITE_P(Sizes, WheelPicture,
                         ::testing::Values(Size{20, 20}, Size{21, 21}, Size{21, 100}, Size{22, 22},
                                           Size{23, 24}, Size{126, 144}, Size{127, 145}, Size{145, 60},
                                           Size{288, 288}),
                         Name);

TEST(WheelPicture, IsHarmlessInAControlTooSmallForIt)
{
    for (int width = 1; width < 20; ++width) {
        for (int height = 1; height < 20; ++height) {
            TestBitmap bitmap(width, height);
            PaintWheel(bitmap.Pixels());
            EXPECT_TRUE(bitmap.GuardsAreWhole());
        }
    }
}

TEST(WheelPicture, PointsAtTheFourHuesAndFadesOverItsOutermostPixels)
{
    TestBitmap bitmap(140, 140); // centre 70, radius 60
    PaintWheel(bitmap.Pixels());
    EXPECT_EQ(bitmap.At(70, 70), Grey(255));
    const int half = 127; // half saturation
    EXPECT_EQ(bitmap.At(100, 70), (Colour{255, half, half}));
    EXPECT_EQ(bitmap.At(70, 100), (Colour{191, 255, half}));
    EXPECT_EQ(bitmap.At(40, 70), (Colour{half, 255, 255}));
    EXPECT_EQ(bitmap.At(70, 40), (Colour{191, half, 255}));
    EXPECT_EQ(bitmap.At(129, 70), (Colour{255, 4, 4})); // a whole pixel inside: unblended
    EXPECT_EQ(bitmap.At(130, 70), Grey(240));           // on the rim
}

TEST(Pictures, OfNothingAreHarmless)
{
    for (const Size size : {Size{0, 0}, Size{0, 5}, Size{5, 0}}) {
        const BitmapPixels empty = {{}, size.width, size.height};
        PaintValueBar(empty);
        PaintWheel(empty);
        EXPECT_TRUE(empty.bytes.empty());
    }
}

TEST(RowBytes, ArePaddedToAMultipleOfFour)
{
    EXPECT_EQ(RowBytes(0), 0U);
    EXPECT_EQ(RowBytes(1), 4U);
    EXPECT_EQ(RowBytes(4), 12U);
    EXPECT_EQ(RowBytes(5), 16U);
}

} // namespace
} // namespace zq::LM
