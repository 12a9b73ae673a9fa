// Filling with the key: the calls, and what happens when the brush cannot be made.
#include "render/key_fill.h"

#include "parts/render/gdi_test.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zq::LM {

namespace {

using test::DrawingCalls;
using test::Green;
using test::TestBitmap;
using testing::ElementsAre;

constexpr COLORREF OtherColour = 0x00FF0000;
constexpr COLORREF FillColour = 0x00FF00FF;

class KeyFillTest : public testing::Test {
protected:
    KeyFillTest() { calls.Name(bitmap.DC(), "dc"); }

    bool Fill() const { return FillRectangle(bitmap.DC(), {0, 0, 60, 40}, FillColour); }

    TestBitmap bitmap{100, 80, Green};
    DrawingCalls calls;
};

TEST_F(KeyFillTest, TakesABrushAndGivesItBack)
{
    EXPECT_TRUE(Fill());
    EXPECT_THAT(calls.Take(), ElementsAre("CreateSolidBrush(0xFF00FF)", "SelectObject(dc, brush 0xFF00FF)",
                                          "PatBlt(dc, 0, 0, 60, 40, 0xF00021)", "SelectObject(dc, previous)",
                                          "DeleteObject(brush 0xFF00FF)"));
    EXPECT_EQ(bitmap.Look().Count(FillColour), 60U * 40U);
}

TEST_F(KeyFillTest, WithoutABrushFillsByTheContextsOwn)
{
    calls.Record<"CreateSolidBrush">(CreateSolidBrush).Fail(nullptr);
    calls.Name(GetStockObject(DC_BRUSH), "the context's");
    EXPECT_TRUE(Fill());
    EXPECT_THAT(calls.Take(),
                ElementsAre("CreateSolidBrush(0xFF00FF)", "SetDCBrushColor(dc, 0xFF00FF)",
                            "SelectObject(dc, the context's)", "PatBlt(dc, 0, 0, 60, 40, 0xF00021)",
                            "SelectObject(dc, previous)", "SetDCBrushColor(dc, 0xFFFFFF)"));
    EXPECT_EQ(bitmap.Look().Count(FillColour), 60U * 40U);
}

TEST_F(KeyFillTest, WithoutABrushLeavesTheContextsBrushAndItsColourAsTheyWere)
{
    SetDCBrushColor(bitmap.DC(), OtherColour);
    HGDIOBJ before = GetCurrentObject(bitmap.DC(), OBJ_BRUSH);
    calls.Record<"CreateSolidBrush">(CreateSolidBrush).Fail(nullptr);
    EXPECT_TRUE(Fill());
    EXPECT_EQ(GetDCBrushColor(bitmap.DC()), OtherColour);
    EXPECT_EQ(GetCurrentObject(bitmap.DC(), OBJ_BRUSH), before);
}

TEST_F(KeyFillTest, ABrushThatIsNotTakenPaintsNothing)
{
    calls.Record<"SelectObject">(SelectObject).Fail(nullptr);
    EXPECT_FALSE(Fill());
    EXPECT_THAT(calls.Take(), testing::Not(testing::Contains(testing::StartsWith("PatBlt"))));
    EXPECT_EQ(GetPixel(bitmap.DC(), 30, 20), Green);
}

TEST_F(KeyFillTest, SaysThatNothingWasPainted)
{
    calls.Record<"PatBlt">(PatBlt).Fail(FALSE);
    EXPECT_FALSE(Fill());
}

TEST_F(KeyFillTest, WithoutADeviceContextSaysSo)
{
    EXPECT_FALSE(FillRectangle(nullptr, {0, 0, 60, 40}, FillColour));
    calls.Record<"CreateSolidBrush">(CreateSolidBrush).Fail(nullptr);
    EXPECT_FALSE(FillRectangle(nullptr, {0, 0, 60, 40}, FillColour));
}

} // namespace

} // namespace zq::LM
