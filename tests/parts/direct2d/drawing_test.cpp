// What each operation of the Direct2D back-end asks of Direct2D, and the pixels that come of it.
#include "parts/direct2d/d2d_test.h"

#include <cstddef>

namespace zq::LM {

namespace {

using test::Lines;
using test::Picture;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

class D2DDrawingTest : public test::D2DTest {
protected:
    D2DDrawingTest() { MakeBoundBackEnd(); }

    Lines LineCalls(unsigned width1, unsigned colour1, unsigned width2, unsigned colour2)
    {
        return CallsOf(
            [=](D2D& drawn) { drawn.DrawLine(20, 50, width1, colour1, 140, 50, width2, colour2); });
    }

    Lines TextCalls(const wchar_t* text, int x, int y, unsigned colour)
    {
        return CallsOf([=](D2D& drawn) { drawn.DrawText(text, x, y, colour); });
    }

    // Neither ink nor key: a fringe.
    static std::size_t Others(const Picture& picture, COLORREF ink)
    {
        return Width * Height - picture.Count(ink) - picture.Count(g_colorKey);
    }
};

TEST_F(D2DDrawingTest, FrameBeginsWithoutATransformAndInTheKey)
{
    EXPECT_TRUE(backEnd->Clear());
    EXPECT_TRUE(backEnd->Present());
    EXPECT_THAT(graphics.Take(), ElementsAre("DCRenderTarget#1.BeginDraw()",
                                             "DCRenderTarget#1.SetTransform({1, 0, 0, 1, 0, 0})",
                                             "DCRenderTarget#1.Clear({1, 0, 1, 0.5})",
                                             "DCRenderTarget#1.EndDraw(null, null) = 0"));
    EXPECT_EQ(bitmap.Look().Count(g_colorKey), static_cast<std::size_t>(Width * Height));
}

TEST_F(D2DDrawingTest, FrameForgetsTheOneBefore)
{
    LineCalls(8, OpaqueRed, 8, OpaqueRed);
    EXPECT_EQ(bitmap.Look().At(80, 50), Red);
    CallsOf([](D2D&) {});
    EXPECT_EQ(bitmap.Look().Count(g_colorKey), static_cast<std::size_t>(Width * Height));
}

TEST_F(D2DDrawingTest, KeysRedAndBlueAreTakenCrosswise)
{
    backEnd->InitTransparentWindow(window, 0x00336699);
    backEnd->Clear();
    EXPECT_THAT(graphics.Take(), Contains("DCRenderTarget#1.Clear({0.2, 0.4, 0.6, 0.5})"));
    backEnd->Present();
}

TEST_F(D2DDrawingTest, FrameOfAnUnboundWindowBeginsInBlack)
{
    backEnd = std::make_unique<D2D>(record);
    backEnd->SetMemoryDC(bitmap.DC());
    graphics.Take();
    backEnd->Clear();
    EXPECT_THAT(graphics.Take(), Contains("DCRenderTarget#2.Clear({0, 0, 0, 1})"));
    backEnd->Present();
    EXPECT_EQ(bitmap.Look().Count(0), static_cast<std::size_t>(Width * Height));
}

TEST_F(D2DDrawingTest, PresentIsTrueWhenTheTargetAsksToBeMadeAnew)
{
    constexpr auto RecreateTarget = static_cast<HRESULT>(0x8899000C);
    backEnd->Clear();
    graphics.Answer("DCRenderTarget.EndDraw", RecreateTarget);
    EXPECT_TRUE(backEnd->Present());
    EXPECT_THAT(graphics.Take(), Not(Contains(HasSubstr("CreateDCRenderTarget"))));
}

TEST_F(D2DDrawingTest, PresentIsFalseForEveryOtherResult)
{
    for (const HRESULT result : {E_FAIL, S_FALSE, static_cast<HRESULT>(D2DERR_WRONG_STATE)}) {
        backEnd->Clear();
        graphics.Answer("DCRenderTarget.EndDraw", result);
        EXPECT_FALSE(backEnd->Present()) << std::hex << result;
    }
}

// The bitmap has the frame before, or a part of this one.
TEST_F(D2DDrawingTest, FrameThatWasNotDrawnLeavesTheBitmapUnknown)
{
    for (const HRESULT result : {S_OK, E_FAIL, static_cast<HRESULT>(0x8899000C)}) {
        record.BeginFrame();
        record.EndFrame();
        record.BeginFrame();
        backEnd->Clear();
        graphics.Answer("DCRenderTarget.EndDraw", result);
        backEnd->Present();
        EXPECT_EQ(record.ToCopy().IsEverything(), result != S_OK) << std::hex << result;
        record.EndFrame();
    }
}

TEST_F(D2DDrawingTest, FrameAfterAFailedOneIsDrawn)
{
    backEnd->Clear();
    graphics.Answer("DCRenderTarget.EndDraw", E_FAIL);
    backEnd->Present();
    LineCalls(8, OpaqueRed, 8, OpaqueRed);
    EXPECT_EQ(bitmap.Look().At(80, 50), Red);
}

TEST_F(D2DDrawingTest, EachSegmentMakesAndReleasesItsBrushAndItsRoundStroke)
{
    EXPECT_THAT(
        LineCalls(2, OpaqueRed, 3, OpaqueRed),
        ElementsAre("DCRenderTarget#1.CreateSolidColorBrush({1, 0, 0, 1}, null) = 0 -> Brush#1",
                    "D2DFactory#1.CreateStrokeStyle({start=2, end=2, dash=0, join=0, miter=10, style=0, "
                    "offset=0}, null, 0) = 0 -> StrokeStyle#1",
                    "DCRenderTarget#1.DrawLine({20, 50}, {140, 50}, Brush#1, 2.5, StrokeStyle#1)",
                    "StrokeStyle#1.Release() = 0", "Brush#1.Release() = 0"));
}

TEST_F(D2DDrawingTest, SecondSegmentKeepsNothingOfTheFirst)
{
    const std::size_t calls = LineCalls(4, OpaqueRed, 4, OpaqueRed).size();
    EXPECT_EQ(LineCalls(4, OpaqueRed, 4, OpaqueRed).size(), calls);
}

TEST_F(D2DDrawingTest, ColoursOfTheEndsAreAveragedChannelByChannel)
{
    EXPECT_THAT(LineCalls(4, 0x000000FF, 4, 0x00000001),
                Contains(StartsWith("DCRenderTarget#1.CreateSolidColorBrush({0.501961, 0, 0, 1}")));
    EXPECT_THAT(LineCalls(4, 0x00FF0000, 4, 0x0000FF00), // mixed bits would carry
                Contains(StartsWith("DCRenderTarget#1.CreateSolidColorBrush({0, 0.5, 0.5, 1}")));
    EXPECT_THAT(LineCalls(4, 0x00FFFFFF, 4, 0x00FFFFFF),
                Contains(StartsWith("DCRenderTarget#1.CreateSolidColorBrush({1, 1, 1, 1}")));
}

TEST_F(D2DDrawingTest, AlphaByteDoesNotCount)
{
    EXPECT_THAT(LineCalls(4, 0x00332211, 4, 0x7F332211),
                Contains(StartsWith("DCRenderTarget#1.CreateSolidColorBrush({0.0666667, 0.133333, 0.2, 1}")));
}

TEST_F(D2DDrawingTest, KeyWithAlpha0ErasesWhatWasDrawn)
{
    const Picture picture = PictureOf([](D2D& drawn) {
        drawn.DrawLine(20, 50, 40, OpaqueRed, 140, 50, 40, OpaqueRed);
        drawn.DrawLine(20, 50, 20, g_colorKey, 140, 50, 20, g_colorKey);
    });
    EXPECT_EQ(picture.At(80, 50), g_colorKey);
    EXPECT_EQ(picture.At(80, 42), g_colorKey);
    EXPECT_EQ(picture.At(80, 37), Red);
    EXPECT_EQ(picture.At(80, 63), Red);
}

// What a pen wider than any screen covers differs between systems.
TEST_F(D2DDrawingTest, HugeEraserIsPassedOn)
{
    EXPECT_THAT(
        LineCalls(0x7FFFFFFF, g_colorKey, 0x7FFFFFFF, g_colorKey),
        Contains("DCRenderTarget#1.DrawLine({20, 50}, {140, 50}, Brush#1, 2.14748e+09, StrokeStyle#1)"));
}

TEST_F(D2DDrawingTest, PointIsAskedForAsALineToItself)
{
    EXPECT_THAT(CallsOf([](D2D& drawn) { drawn.DrawLine(70, 50, 40, OpaqueRed, 70, 50, 40, OpaqueRed); }),
                Contains("DCRenderTarget#1.DrawLine({70, 50}, {70, 50}, Brush#1, 40, StrokeStyle#1)"));
}

TEST_F(D2DDrawingTest, SegmentWithoutABrushIsLeftOut)
{
    for (const HRESULT result : {E_OUTOFMEMORY, S_OK}) { // the second without a brush all the same
        graphics.Answer("DCRenderTarget.CreateSolidColorBrush", result);
        EXPECT_EQ(LineCalls(4, OpaqueRed, 4, OpaqueRed).size(), 1U);
    }
    EXPECT_EQ(bitmap.Look().Count(g_colorKey), static_cast<std::size_t>(Width * Height));
}

TEST_F(D2DDrawingTest, SegmentWithoutAStrokeStyleHasFlatEnds)
{
    graphics.Answer("D2DFactory.CreateStrokeStyle", E_OUTOFMEMORY);
    EXPECT_THAT(LineCalls(4, OpaqueRed, 4, OpaqueRed),
                Contains("DCRenderTarget#1.DrawLine({20, 50}, {140, 50}, Brush#1, 4, null)"));
    EXPECT_EQ(bitmap.Look().At(80, 50), Red);
}

TEST_F(D2DDrawingTest, EveryPixelIsInkOrKey)
{
    constexpr COLORREF Ink = RGB(0x20, 0x40, 0x80);
    constexpr unsigned OpaqueInk = 0xFF804020;
    const Picture picture = PictureOf([](D2D& drawn) {
        drawn.DrawLine(10, 10, 7, OpaqueInk, 143, 61, 7, OpaqueInk);
        drawn.DrawLine(15, 90, 12, OpaqueInk, 120, 13, 12, OpaqueInk);
        drawn.DrawLine(100, 70, 1, OpaqueInk, 111, 97, 1, OpaqueInk);
        drawn.DrawText(L"Hamburg", 20, 60, OpaqueInk);
    });
    EXPECT_GT(picture.Count(Ink), 1000U);
    EXPECT_EQ(Others(picture, Ink), 0U);
}

TEST_F(D2DDrawingTest, TextRunsFromItsCornerToTheShellsLowerRightOne)
{
    EXPECT_THAT(TextCalls(L"Ink 1", 10, 20, 0x7F112233),
                ElementsAre("DCRenderTarget#1.CreateSolidColorBrush({0.2, 0.133333, 0.0666667, 1}, null) = 0 "
                            "-> Brush#1",
                            "DCRenderTarget#1.DrawText(\"Ink 1\", 5, TextFormat#1, {10, 20, 160, 100}, "
                            "Brush#1, 0, 0)",
                            "Brush#1.Release() = 0"));
}

TEST_F(D2DDrawingTest, TextIsLaidOutByTheShellsPlaceOnTheScreen)
{
    shell.Move({30, 20, 130, 90});
    EXPECT_THAT(
        TextCalls(L"", -5, 200, 0),
        Contains("DCRenderTarget#1.DrawText(\"\", 0, TextFormat#1, {-5, 200, 130, 90}, Brush#1, 0, 0)"));
}

TEST_F(D2DDrawingTest, TextNearTheShellsRightEdgeIsWrappedThere)
{
    constexpr int Right = 100;
    constexpr int LineHeight = 24; // more than one line of the format, less than two
    shell.Move({0, 0, Right, Height});
    const Picture wide = PictureOf([](D2D& drawn) { drawn.DrawText(L"one two", 5, 10, OpaqueRed); });
    const Picture wrapped =
        PictureOf([](D2D& drawn) { drawn.DrawText(L"one two", Right - 50, 10, OpaqueRed); });
    EXPECT_LE(wide.BoundsOfOther(g_colorKey).bottom, 10 + LineHeight);
    const RECT bounds = wrapped.BoundsOfOther(g_colorKey);
    EXPECT_GT(bounds.bottom, 10 + LineHeight) << wrapped.Print(g_colorKey, {0, 0, Width, Height});
    EXPECT_LE(bounds.right, Right);
}

TEST_F(D2DDrawingTest, TextNeedsAShell)
{
    shell.Remove();
    EXPECT_THAT(TextCalls(L"Ink", 10, 20, OpaqueRed), IsEmpty());
}

TEST_F(D2DDrawingTest, TextWithoutABrushIsLeftOut)
{
    graphics.Answer("DCRenderTarget.CreateSolidColorBrush", E_OUTOFMEMORY);
    EXPECT_THAT(TextCalls(L"Ink", 10, 20, OpaqueRed), Not(Contains(HasSubstr("DrawText"))));
}

TEST_F(D2DDrawingTest, RemainingOperationsMeanNothing)
{
    std::vector<PenData> samples(2);
    samples[0].x = samples[0].y = samples[0].pressure = 5;
    samples[1].x = samples[1].y = samples[1].pressure = 80;
    EXPECT_THAT(CallsOf([&](D2D& drawn) {
                    drawn.DrawPenData(&samples, 10, OpaqueRed);
                    drawn.DrawPenData(nullptr, 10, OpaqueRed);
                    drawn.Resize(window);
                    drawn.Resize(nullptr);
                    drawn.FillRect(0, 0, Width, Height, OpaqueRed);
                }),
                IsEmpty());
    EXPECT_EQ(bitmap.Look().Count(g_colorKey), static_cast<std::size_t>(Width * Height));
}

} // namespace

} // namespace zq::LM
