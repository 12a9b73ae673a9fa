// The pen sample: layout and the rule that tells touching from hovering.
#include "ink/pen_data.h"

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <limits>
#include <type_traits>

namespace zq::LM {
namespace {

PenData WithPressure(std::int32_t pressure)
{
    PenData sample{};
    sample.pressure = pressure;
    return sample;
}

TEST(PenDataLayout, IsAPlainRecordOf36Bytes)
{
    EXPECT_EQ(sizeof(PenData), 36U);
    EXPECT_TRUE(std::is_trivially_copyable_v<PenData>);
    EXPECT_TRUE(std::is_standard_layout_v<PenData>);
    EXPECT_TRUE(std::has_unique_object_representations_v<PenData>) << "there is padding";
}

TEST(PenDataLayout, EveryFieldIsItsOwnWord)
{
    const std::array<std::uint32_t, 9> words = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    PenData sample{};
    std::memcpy(&sample, words.data(), sizeof(sample));
    EXPECT_EQ(sample.time, 1U);
    EXPECT_EQ(sample.aux1, 2U);
    EXPECT_EQ(sample.x, 3);
    EXPECT_EQ(sample.y, 4);
    EXPECT_EQ(sample.aux4, 5U);
    EXPECT_EQ(sample.pressure, 6);
    EXPECT_EQ(sample.aux6, 7U);
    EXPECT_EQ(sample.aux7, 8U);
    EXPECT_EQ(sample.aux8, 9U);
}

TEST(PenDataLayout, PositionAndPressureAreSigned)
{
    const std::array<std::uint32_t, 9> words = {0, 0, 0xFFFFFFFF, 0xFFFFFFFE, 0, 0xFFFFFFFD, 0, 0, 0};
    PenData sample{};
    std::memcpy(&sample, words.data(), sizeof(sample));
    EXPECT_EQ(sample.x, -1);
    EXPECT_EQ(sample.y, -2);
    EXPECT_EQ(sample.pressure, -3);
}

TEST(PenTouches, FromAPressureOf1On)
{
    EXPECT_TRUE(Touches(WithPressure(1)));
    EXPECT_TRUE(Touches(WithPressure(std::numeric_limits<std::int32_t>::max())));
}

TEST(PenTouches, NotAtZeroPressure) { EXPECT_FALSE(Touches(WithPressure(0))); }

TEST(PenTouches, NotAtNegativePressure)
{
    EXPECT_FALSE(Touches(WithPressure(-1)));
    EXPECT_FALSE(Touches(WithPressure(std::numeric_limits<std::int32_t>::min())));
}

} // namespace
} // namespace zq::LM
