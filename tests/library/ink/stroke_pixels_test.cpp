// Strokes on the real screen: where they lie, how wide they are, in which colours, and what stays
// see-through.
#include "support/library/ink_on_screen.h"

namespace zq::LM::test {

namespace {

class StrokePixels : public OpaqueInkOnScreen {};

// A line's edges lie between pixels: one of them may round the other way.
constexpr int RoundingPixel = 1;

TEST_F(StrokePixels, LeaveEveryOtherPixelToTheWindowBelow)
{
    InputAndPaint({Sample(100, 100), Sample(200, 150), Sample(120, 300)});
    const Picture picture = Look();
    EXPECT_GT(picture.Count(Red), 2000U);
    EXPECT_EQ(picture.Count(Red) + picture.Count(Green), static_cast<std::size_t>(All.right * All.bottom));
    const RECT bounds = picture.BoundsOfOther(Green);
    EXPECT_GE(bounds.left, 94);
    EXPECT_GE(bounds.top, 94);
    EXPECT_LE(bounds.right, 206);
    EXPECT_LE(bounds.bottom, 306);
}

class StrokeWidth : public StrokePixels, public testing::WithParamInterface<std::pair<int, int>> {};

TEST_P(StrokeWidth, FollowsThePressure)
{
    const auto [pressure, width] = GetParam();
    params.usePressure = 1;
    params.brushSize = 40;
    params.minBrushSize = 4;
    params.maxPressure = 1000;
    Apply();
    Stroke(100, 300, 200, pressure);
    EXPECT_NEAR(CountInColumn(Look(), 200, Red), width, RoundingPixel);
}

INSTANTIATE_TEST_SUITE_P(Pressures, StrokeWidth,
                         testing::Values(std::pair(1, 4), std::pair(250, 10), std::pair(500, 20),
                                         std::pair(750, 30), std::pair(1000, 40), std::pair(5000, 40)));

TEST_F(StrokePixels, HaveTheBrushsWidthWithoutPressure)
{
    params.brushSize = 26;
    Apply();
    Stroke(100, 300, 200, 1);
    EXPECT_NEAR(CountInColumn(Look(), 200, Red), 26, RoundingPixel);
}

TEST_F(StrokePixels, HaveARimInTheContrastColour)
{
    params.outline = 1;
    params.brushSize = 20;
    Apply();
    Stroke(100, 300, 200);
    const Picture picture = Look();
    EXPECT_NEAR(CountInColumn(picture, 200, Red), 20, RoundingPixel);
    EXPECT_EQ(CountInColumn(picture, 200, White), 2) << "one pixel above and one below";
    EXPECT_EQ(picture.At(200, 200), Red);
}

TEST_F(StrokePixels, HaveABlackRimWhenTheInkIsLight)
{
    params.outline = 1;
    params.brushSize = 20;
    params.inkColor = 0x0000FFFF;
    Apply();
    Stroke(100, 300, 200);
    EXPECT_EQ(CountInColumn(Look(), 200, Black), 2);
}

TEST_F(StrokePixels, OfOutlineOnlyAreNotCoveredByAHugeEraserEither)
{
    params.line = 0;
    params.outline = 1;
    params.brushSize = 3; // narrower than the inset: erases with the widest pen there is
    Apply();
    Stroke(100, 300, 200);
    const Picture picture = Look();
    EXPECT_EQ(picture.At(200, 200), Red);
    EXPECT_EQ(picture.At(200, 210), Green);
}

TEST_F(StrokePixels, BeyondTheOverlayAreCutAtItsEdge)
{
    Stroke(-100, 2000, 100);
    const Picture screen = TakePicture({0, 0, 1024, 768});
    EXPECT_EQ(screen.At(Desktop.left, Desktop.top + 100), Red);
    EXPECT_EQ(screen.At(Desktop.right - 1, Desktop.top + 100), Red);
    EXPECT_NE(screen.At(Desktop.left - 1, Desktop.top + 100), Red);
    EXPECT_NE(screen.At(Desktop.right, Desktop.top + 100), Red);
}

} // namespace

} // namespace zq::LM::test
