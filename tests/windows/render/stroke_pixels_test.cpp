// Strokes on the real screen: where they lie, how wide they are, in which colours, and what stays
// see-through.
#include "ink_on_screen.h"

namespace zq::LM::test {

namespace {

class StrokePixels : public OpaqueInkOnScreen {};

// A line's edges lie between pixels: one of them may round the other way.
constexpr int RoundingPixel = 1;

TEST_F(StrokePixels, LieAtThePenWithinTheOverlay)
{
    Stroke(100, 200, 100);
    const Picture screen = TakePicture(Desktop); // in screen coordinates
    EXPECT_EQ(screen.At(Desktop.left + 100, Desktop.top + 100), Red);
    EXPECT_EQ(screen.At(Desktop.left + 199, Desktop.top + 100), Red);
    EXPECT_EQ(screen.At(Desktop.left + 150, Desktop.top + 90), Green);
}

TEST_F(StrokePixels, AreBoundedByTheirWidthAndRoundEnds)
{
    Stroke(100, 200, 100);
    const RECT bounds = Look().BoundsOfOther(Green);
    EXPECT_NEAR(bounds.left, 95, RoundingPixel);
    EXPECT_NEAR(bounds.right, 205, RoundingPixel);
    EXPECT_NEAR(bounds.top, 95, RoundingPixel);
    EXPECT_NEAR(bounds.bottom, 105, RoundingPixel);
}

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

TEST_F(StrokePixels, JoinTheirSegmentsWithoutAGap)
{
    InputAndPaint({Sample(100, 100), Sample(200, 100), Sample(200, 200)});
    const Picture picture = Look();
    EXPECT_EQ(picture.At(200, 100), Red);
    EXPECT_EQ(picture.At(202, 98), Red) << "the round ends fill the corner";
    EXPECT_EQ(picture.At(200, 150), Red);
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

TEST_F(StrokePixels, HaveThePressureOfTheirNewerEnd)
{
    params.usePressure = 1;
    params.brushSize = 40;
    params.maxPressure = 1000;
    Apply();
    InputAndPaint({Sample(100, 200, 1000), Sample(300, 200, 250)});
    EXPECT_NEAR(CountInColumn(Look(), 200, Red), 10, RoundingPixel);
}

TEST_F(StrokePixels, HaveTheBrushsWidthWithoutPressure)
{
    params.brushSize = 26;
    Apply();
    Stroke(100, 300, 200, 1);
    EXPECT_NEAR(CountInColumn(Look(), 200, Red), 26, RoundingPixel);
}

TEST_F(StrokePixels, HaveTheInksColour)
{
    params.inkColor = 0x00C08040;
    Apply();
    Stroke(100, 200, 100);
    EXPECT_EQ(Look().At(150, 100), static_cast<COLORREF>(0x00C08040));
}

TEST_F(StrokePixels, InTheTransparentColourAreSeenInItsNeighbour)
{
    params.inkColor = 0x00FF00FF;
    Apply();
    Stroke(100, 200, 100);
    EXPECT_EQ(Look().At(150, 100), static_cast<COLORREF>(0x00FE00FF));
}

TEST_F(StrokePixels, Lie50PixelsAboveThePenWithTheOffset)
{
    params.useOffset = 1;
    Apply();
    Stroke(100, 200, 100);
    const Picture picture = Look();
    EXPECT_EQ(picture.At(150, 50), Red);
    EXPECT_EQ(picture.At(150, 100), Green);
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

TEST_F(StrokePixels, OfOutlineOnlyKeepTheirCoreBecauseErasingDrawsNothing)
{
    params.line = 0;
    params.outline = 1;
    params.brushSize = 20;
    Apply();
    Stroke(100, 300, 200);
    const Picture picture = Look();
    EXPECT_EQ(picture.At(200, 200), Red) << "not the window below";
    EXPECT_NEAR(CountInColumn(picture, 200, Red), 20, RoundingPixel);
    EXPECT_EQ(CountInColumn(picture, 200, White), 2);
    EXPECT_EQ(CountInColumn(picture, 200, Green), All.bottom - CountInColumn(picture, 200, Red) - 2);
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

TEST_F(StrokePixels, ChangeColourEvery10MillisecondsOfAgeInZebraMode)
{
    params.zebraMode = 1;
    Apply();
    for (int i = 0; i <= 5; ++i) {
        Input({Sample(100 + 40 * i, 100)});
        clock.Advance(10);
    }
    clock.Advance(5); // the segments are 65, 55, 45, 35 and 25 ms old
    Paint();
    const Picture picture = Look();
    EXPECT_EQ(picture.At(120, 100), Red);
    EXPECT_EQ(picture.At(160, 100), White);
    EXPECT_EQ(picture.At(200, 100), Red);
    EXPECT_EQ(picture.At(240, 100), White);
    EXPECT_EQ(picture.At(280, 100), Red);
}

TEST_F(StrokePixels, MoveTheirZebraBandsAsTheyAge)
{
    params.zebraMode = 1;
    Apply();
    Stroke(100, 200, 100);
    EXPECT_EQ(Look().At(150, 100), Red);
    clock.Advance(10);
    Refresh();
    EXPECT_EQ(Look().At(150, 100), White);
    clock.Advance(10);
    Refresh();
    EXPECT_EQ(Look().At(150, 100), Red);
}

TEST_F(StrokePixels, BreakWhereThePenHovers)
{
    InputAndPaint(
        {Sample(100, 100), Sample(150, 100), Sample(200, 100, 0), Sample(250, 100), Sample(300, 100)});
    const Picture picture = Look();
    EXPECT_EQ(picture.At(125, 100), Red);
    EXPECT_EQ(picture.At(175, 100), Green);
    EXPECT_EQ(picture.At(200, 100), Green);
    EXPECT_EQ(picture.At(225, 100), Green);
    EXPECT_EQ(picture.At(275, 100), Red);
}

TEST_F(StrokePixels, ShortenFromTheirTailAsTimePasses)
{
    params.inkDecayTime = 100;
    Apply();
    for (int i = 0; i <= 4; ++i) {
        Input({Sample(100 + 40 * i, 100)});
        clock.Advance(20);
    }
    Paint(); // the samples are 100, 80, 60, 40 and 20 ms old
    EXPECT_EQ(Look().At(120, 100), Green) << "its older end has lived for 100 ms";
    EXPECT_EQ(Look().At(160, 100), Red);
    clock.Advance(20);
    Refresh();
    EXPECT_EQ(Look().At(160, 100), Green);
    EXPECT_EQ(Look().At(200, 100), Red);
    clock.Advance(20);
    Refresh();
    EXPECT_EQ(Look().At(200, 100), Green);
    EXPECT_EQ(Look().At(240, 100), Red);
}

TEST_F(StrokePixels, AreDroppedByAResetBeforeTheyAreDrawn)
{
    InputAndPaint({Sample(100, 100), Sample(200, 100), Sample(0, 100), Sample(100, 200), Sample(200, 200)});
    const Picture picture = Look();
    EXPECT_EQ(picture.At(150, 100), Green);
    EXPECT_EQ(picture.At(150, 200), Red);
}

TEST_F(StrokePixels, StayWhenAResetComesAfterTheyWereDrawn)
{
    Stroke(100, 200, 100);
    InputAndPaint({Sample(100, 0)});
    EXPECT_EQ(Look().At(150, 100), Red);
}

TEST_F(StrokePixels, OfOneSampleAreNothing)
{
    InputAndPaint({Sample(100, 100)});
    EXPECT_EQ(Look().Count(Green), static_cast<std::size_t>(All.right * All.bottom));
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
