// What a line callback decides before it hands a segment to a back-end.
#include "render/line_rules.h"

#include <gtest/gtest.h>

namespace zq::LM {
namespace {

TEST(LineColours, KeyAndSubstituteHaveTheseValues)
{
    EXPECT_EQ(g_colorKey, 0x00FF00FFU);
    EXPECT_EQ(g_colorKeySubstitute, 0x00FE00FFU);
}

TEST(MixColours, EqualColoursGiveThatColour)
{
    for (const std::uint32_t colour : {0U, 0x00202020U, 0x00FFFFFFU, 0xFFFFFFFFU, 0x12345678U}) {
        EXPECT_EQ(MixColors(colour, colour), colour);
    }
}

TEST(MixColours, OrsWhereAMeanWouldAddOverAll32Bits)
{
    EXPECT_EQ(MixColors(0x00000003, 0x00000001), 0x00000001U);
    EXPECT_EQ(MixColors(0x00000005, 0x00000003), 0x00000003U); // 1 | 6 >> 1; the mean is 4
    EXPECT_EQ(MixColors(0x000000FF, 0x0000FF00), 0x00007FFFU); // a bit is carried across channels
    EXPECT_EQ(MixColors(0xFF000000, 0x00000000), 0x7F800000U);
    EXPECT_EQ(MixColors(0x00123456, 0x00FEDCBA), MixColors(0x00FEDCBA, 0x00123456));
}

TEST(InkLineColour, MixedColourIsOpaque) { EXPECT_EQ(InkLineColour(0x000000FF, 0x0000FF00), 0xFF007FFFU); }

TEST(InkLineColour, KeyBecomesTheSubstituteAlsoWhereItComesFromMixing)
{
    EXPECT_EQ(InkLineColour(0x00FF00FF, 0x00FF00FF), 0xFFFE00FFU);
    EXPECT_EQ(InkLineColour(0x01FE01FE, 0x00000000), 0xFFFE00FFU);
    EXPECT_EQ(InkLineColour(0x00FE00FF, 0x00FE00FF), 0xFFFE00FFU);
}

TEST(InkLineColour, KeyIsComparedOverAllBitsOfTheMixture)
{
    EXPECT_EQ(InkLineColour(0x01FF00FF, 0x01FF00FF), 0xFFFF00FFU);
    EXPECT_EQ(InkLineColour(0xFFFF00FF, 0xFFFF00FF), 0xFFFF00FFU);
    EXPECT_EQ(InkLineColour(0x00FF00FF, 0x00000000), 0xFF7F807FU);
}

TEST(LineWidths, SumWrapsAt32BitsAndOnlyOneRuleKeepsTheHalf)
{
    struct Case {
        std::uint32_t w1, w2, whole;
        float half;
    };
    for (const Case& tested :
         {Case{3, 4, 3, 3.5F}, Case{10, 10, 10, 10.0F}, Case{0, 0, 0, 0.0F}, Case{0xFFFFFFFF, 1, 0, 0.0F},
          Case{0xFFFFFFFF, 4, 1, 1.5F}, Case{0xFFFFFFFF, 0xFFFFFFFF, 0x7FFFFFFF, 2147483648.0F}}) {
        EXPECT_EQ(MixWidths(tested.w1, tested.w2), tested.whole);
        EXPECT_EQ(HalfWidthSum(tested.w1, tested.w2), tested.half);
    }
}

} // namespace
} // namespace zq::LM
