// The rules that read single fields of record and sample, and the conversions of doubles to 32-bit integers.
#include "ink/params.h"
#include "ink/pen_data.h"
#include "ink/truncation.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>

namespace zq::LM {
namespace {

constexpr std::uint32_t EveryBit = 0xFFFFFFFF;
constexpr std::uint32_t EveryOption = 0x103F;
constexpr double Infinity = std::numeric_limits<double>::infinity();
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();

TEST(ParamsDefaults, HaveTheseBytes)
{
    constexpr std::array<unsigned char, 32> Expected = {
        0x00, 0x00, 0x00, 0x00, 0x64, 0x00, 0x00, 0x00, 0x20, 0x20, 0x20, 0x00, 0x01, 0x00, 0x00, 0x00,
        0x0A, 0x00, 0x00, 0x00, 0xFF, 0x7F, 0x00, 0x00, 0x01, 0x00, 0x01, 0x01, 0x00, 0x00, 0x00, 0x00};
    EXPECT_EQ(std::memcmp(&DefaultParams, Expected.data(), Expected.size()), 0);
    EXPECT_EQ(EnabledOptions(DefaultParams, EveryBit), 0x0013U);
}

TEST(OptionBits, EachFlagHasItsOwnForAnyValueButZero)
{
    struct Option {
        std::uint8_t Params::*flag;
        std::uint32_t bit;
    };
    Params none;
    std::memset(&none, 0xFF, sizeof(none)); // no other field has a bit
    none.line = none.outline = none.cursor = none.usePressure = none.useOffset = none.zebraMode =
        none.colorPicker = 0;
    EXPECT_EQ(EnabledOptions(none, EveryBit), 0U);
    Params all;
    std::memset(&all, 1, sizeof(all));
    for (const Option& option :
         {Option{&Params::cursor, 0x0001}, Option{&Params::line, 0x0002}, Option{&Params::outline, 0x0004},
          Option{&Params::zebraMode, 0x0008}, Option{&Params::usePressure, 0x0010},
          Option{&Params::useOffset, 0x0020}, Option{&Params::colorPicker, 0x1000}}) {
        for (const int value : {1, 2, 0x80, 0xFF}) {
            Params params = none;
            params.*option.flag = static_cast<std::uint8_t>(value);
            EXPECT_EQ(EnabledOptions(params, EveryBit), option.bit);
            EXPECT_EQ(EnabledOptions(params, ~option.bit), 0U);
        }
        Params others = all;
        others.*option.flag = 0;
        EXPECT_EQ(EnabledOptions(others, EveryBit), EveryOption & ~option.bit);
    }
}

TEST(ContrastColour, IsWhiteUpToASumOf383AndBlackFrom384On)
{
    for (const std::uint32_t dark : {0x00000000U, 0x00202020U, 0x007F8080U, 0x0000FF80U, 0x00FF8000U,
                                     0x00FF0080U, 0xFF7F8080U, 0xFF000000U}) {
        EXPECT_EQ(ContrastColour(dark), 0x00FFFFFFU) << dark;
    }
    for (const std::uint32_t light :
         {0x00FFFFFFU, 0x00808080U, 0x0000FF81U, 0x00FF8100U, 0x00FF0081U, 0x01808080U}) {
        EXPECT_EQ(ContrastColour(light), 0x00000000U) << light;
    }
}

TEST(PenTouches, FromAPressureOf1On)
{
    for (const std::int32_t pressure : {Least, -1, 0, 1, Most}) {
        PenData sample{};
        sample.pressure = pressure;
        EXPECT_EQ(Touches(sample), pressure > 0) << pressure;
    }
}

struct WidthCase {
    const char* what;
    std::uint32_t minBrushSize, brushSize, maxPressure;
    std::int32_t pressure;
    std::uint32_t width;
};

TEST(SegmentWidth, FollowsThePressure)
{
    for (const WidthCase& tested : {WidthCase{"full pressure", 1, 10, 32767, 32767, 10},
                                    {"half of an odd range rounds down", 1, 10, 32767, 16384, 5},
                                    {"the least touch has the smallest width", 1, 10, 32767, 1, 1},
                                    {"exactly half a pixel rounds up", 0, 10, 20, 5, 3},
                                    {"just below half a pixel rounds down", 0, 100, 1000, 4, 0},
                                    {"more than full pressure", 1, 10, 32767, 40000, 10},
                                    {"the smallest width holds from below", 4, 10, 10, 3, 4},
                                    {"and not above", 4, 10, 10, 5, 5},
                                    {"a smallest width above the brush size", 20, 10, 100, 1, 10},
                                    {"clamps compare unsigned", 0x80000000, 0xFFFFFFFF, 100, 1, 0x80000000},
                                    {"an empty range is full at any touch", 1, 10, 0, 1, 10},
                                    {"but 0 of 0 is none", 3, 10, 0, 0, 3},
                                    {"a range above 31 bits is unsigned", 0, 100, 0xFFFFFFFE, Most, 50},
                                    {"too large a product saturates", 1, 0xFFFFFFFF, 1, Most, 0xFFFFFFFF},
                                    {"the largest brush is exact", 1, 0xFFFFFFFE, 100, 100, 0xFFFFFFFE},
                                    {"no brush", 1, 0, 100, 100, 0},
                                    {"infinity times no brush", 1, 0, 0, 1, 0},
                                    {"negative pressure", 2, 10, 100, Least, 2}}) {
        Params params = DefaultParams;
        params.minBrushSize = tested.minBrushSize;
        params.brushSize = tested.brushSize;
        params.maxPressure = tested.maxPressure;
        for (const int flag : {1, 2, 0xFF}) {
            params.usePressure = static_cast<std::uint8_t>(flag);
            EXPECT_EQ(SegmentWidth(params, tested.pressure), tested.width) << tested.what;
        }
        params.usePressure = 0;
        EXPECT_EQ(SegmentWidth(params, tested.pressure), tested.brushSize) << tested.what;
    }
}

TEST(Truncation, ToUnsignedCutsAndSaturates)
{
    for (const double none : {0.999, -0.0, -0.5, -1e300, -Infinity, NotANumber}) {
        EXPECT_EQ(TruncateToUnsigned(none), 0U) << none;
    }
    EXPECT_EQ(TruncateToUnsigned(1.0), 1U);
    EXPECT_EQ(TruncateToUnsigned(5.5002), 5U);
    EXPECT_EQ(TruncateToUnsigned(4294967294.9), 0xFFFFFFFEU);
    for (const double large : {4294967295.0, 4294967295.5, 4294967296.0, 1e300, Infinity}) {
        EXPECT_EQ(TruncateToUnsigned(large), 0xFFFFFFFFU) << large;
    }
}

TEST(Truncation, ToSignedCutsTowardZeroAndSaturates)
{
    EXPECT_EQ(TruncateToSigned(1.9), 1);
    EXPECT_EQ(TruncateToSigned(-1.9), -1);
    EXPECT_EQ(TruncateToSigned(-0.9), 0);
    EXPECT_EQ(TruncateToSigned(NotANumber), 0);
    EXPECT_EQ(TruncateToSigned(2147483646.9), Most - 1);
    EXPECT_EQ(TruncateToSigned(-2147483647.9), Least + 1);
    for (const double large : {2147483647.0, 2147483647.5, 2147483648.0, Infinity}) {
        EXPECT_EQ(TruncateToSigned(large), Most) << large;
        EXPECT_EQ(TruncateToSigned(-large - 1), Least) << large;
    }
}

} // namespace
} // namespace zq::LM
