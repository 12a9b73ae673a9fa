// The parameter record: layout, defaults, option bits and the contrast rule.
#include "ink/params.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <string>
#include <type_traits>

namespace zq::LM {
namespace {

using ParamsBytes = std::array<unsigned char, sizeof(Params)>;

ParamsBytes BytesOf(const Params& params)
{
    ParamsBytes bytes{};
    std::memcpy(bytes.data(), &params, bytes.size());
    return bytes;
}

// Every field has a value of its own, and every byte differs from its neighbours.
Params FromBytes()
{
    ParamsBytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<unsigned char>(i + 1);
    }
    Params params{};
    std::memcpy(&params, bytes.data(), bytes.size());
    return params;
}

TEST(ParamsLayout, IsAPlainRecordOf32Bytes)
{
    EXPECT_EQ(sizeof(Params), 32U);
    EXPECT_TRUE(std::is_trivially_copyable_v<Params>);
    EXPECT_TRUE(std::is_standard_layout_v<Params>);
    EXPECT_TRUE(std::has_unique_object_representations_v<Params>) << "there is padding";
}

TEST(ParamsLayout, EveryFieldReadsItsOwnBytesLittleEndian)
{
    const Params params = FromBytes();
    EXPECT_EQ(params.reserved0, 0x04030201U);
    EXPECT_EQ(params.inkDecayTime, 0x08070605U);
    EXPECT_EQ(params.inkColor, 0x0C0B0A09U);
    EXPECT_EQ(params.minBrushSize, 0x100F0E0DU);
    EXPECT_EQ(params.brushSize, 0x14131211U);
    EXPECT_EQ(params.maxPressure, 0x18171615U);
    EXPECT_EQ(params.line, 25);
    EXPECT_EQ(params.outline, 26);
    EXPECT_EQ(params.cursor, 27);
    EXPECT_EQ(params.usePressure, 28);
    EXPECT_EQ(params.useOffset, 29);
    EXPECT_EQ(params.zebraMode, 30);
    EXPECT_EQ(params.colorPicker, 31);
    EXPECT_EQ(params.reserved31, 32);
}

TEST(ParamsDefaults, HaveTheseBytes)
{
    constexpr ParamsBytes Expected = {0x00, 0x00, 0x00, 0x00, 0x64, 0x00, 0x00, 0x00, 0x20, 0x20, 0x20,
                                      0x00, 0x01, 0x00, 0x00, 0x00, 0x0A, 0x00, 0x00, 0x00, 0xFF, 0x7F,
                                      0x00, 0x00, 0x01, 0x00, 0x01, 0x01, 0x00, 0x00, 0x00, 0x00};
    EXPECT_EQ(BytesOf(DefaultParams), Expected);
}

struct OptionCase {
    const char* name;
    std::uint8_t Params::*flag;
    std::uint32_t bit;
};

constexpr OptionCase OptionCases[] = {
    {"Cursor", &Params::cursor, 0x0001},           {"Line", &Params::line, 0x0002},
    {"Outline", &Params::outline, 0x0004},         {"ZebraMode", &Params::zebraMode, 0x0008},
    {"Pressure", &Params::usePressure, 0x0010},    {"Offset", &Params::useOffset, 0x0020},
    {"ColorPicker", &Params::colorPicker, 0x1000},
};
constexpr std::uint32_t EveryBit = 0xFFFFFFFF;
constexpr std::uint32_t EveryOption = 0x103F;

class OptionBits : public testing::TestWithParam<OptionCase> {};

TEST_P(OptionBits, FlagByteAloneGivesItsBit)
{
    Params params{};
    params.*GetParam().flag = 1;
    EXPECT_EQ(EnabledOptions(params, EveryBit), GetParam().bit);
}

TEST_P(OptionBits, AnyOtherFlagByteLeavesTheBitOff)
{
    Params params{};
    for (const OptionCase& option : OptionCases) {
        params.*option.flag = 1;
    }
    params.*GetParam().flag = 0;
    EXPECT_EQ(EnabledOptions(params, EveryBit), EveryOption & ~GetParam().bit);
}

TEST_P(OptionBits, AnyValueButZeroCountsAsOn)
{
    Params params{};
    for (const int value : {2, 0x80, 0xFF}) {
        params.*GetParam().flag = static_cast<std::uint8_t>(value);
        EXPECT_EQ(EnabledOptions(params, EveryBit), GetParam().bit) << value;
    }
}

TEST_P(OptionBits, MaskSelectsTheBit)
{
    Params params{};
    params.*GetParam().flag = 1;
    EXPECT_EQ(EnabledOptions(params, GetParam().bit), GetParam().bit);
    EXPECT_EQ(EnabledOptions(params, ~GetParam().bit), 0U);
}

INSTANTIATE_TEST_SUITE_P(Flags, OptionBits, testing::ValuesIn(OptionCases),
                         [](const testing::TestParamInfo<OptionCase>& tested) {
                             return std::string(tested.param.name);
                         });

TEST(OptionBits, DefaultsAreCursorLineAndPressure)
{
    EXPECT_EQ(EnabledOptions(DefaultParams, EveryBit), 0x0013U);
}

TEST(OptionBits, ReservedFieldsHaveNoBit)
{
    Params params{};
    params.reserved0 = EveryBit;
    params.reserved31 = 0xFF;
    EXPECT_EQ(EnabledOptions(params, EveryBit), 0U);
}

TEST(OptionBits, NumericFieldsHaveNoBit)
{
    Params params{};
    params.inkDecayTime = params.inkColor = params.minBrushSize = params.brushSize = params.maxPressure =
        EveryBit;
    EXPECT_EQ(EnabledOptions(params, EveryBit), 0U);
}

TEST(ContrastColour, IsWhiteAtASumOf383) { EXPECT_EQ(ContrastColour(0x007F8080), 0x00FFFFFFU); }

TEST(ContrastColour, IsBlackAtASumOf384) { EXPECT_EQ(ContrastColour(0x00808080), 0x00000000U); }

TEST(ContrastColour, IsWhiteOnBlackAndBlackOnWhite)
{
    EXPECT_EQ(ContrastColour(0x00000000), 0x00FFFFFFU);
    EXPECT_EQ(ContrastColour(0x00FFFFFF), 0x00000000U);
}

TEST(ContrastColour, CountsEachOfTheThreeBytesAlike)
{
    for (const std::uint32_t dark : {0x0000FF80U, 0x00FF8000U, 0x00FF0080U, 0x0080FF00U}) {
        EXPECT_EQ(ContrastColour(dark), 0x00FFFFFFU) << dark;
    }
    for (const std::uint32_t light : {0x0000FF81U, 0x00FF8100U, 0x00FF0081U, 0x0081FF00U}) {
        EXPECT_EQ(ContrastColour(light), 0x00000000U) << light;
    }
}

TEST(ContrastColour, IgnoresTheTopByte)
{
    EXPECT_EQ(ContrastColour(0xFF7F8080), 0x00FFFFFFU);
    EXPECT_EQ(ContrastColour(0xFF000000), 0x00FFFFFFU);
    EXPECT_EQ(ContrastColour(0x01808080), 0x00000000U);
}

TEST(ContrastColour, OfTheDefaultInkIsWhite)
{
    EXPECT_EQ(ContrastColour(DefaultParams.inkColor), 0x00FFFFFFU);
}

} // namespace
} // namespace zq::LM
