// What each drawing operation of the back-end asks of Direct2D, and what shows.
#include "parts/composition/linked_test.h"

namespace zq::LM {

namespace {

using test::Lines;
using testing::ElementsAre;
using testing::IsEmpty;

// Passing a brush on through a further reference is no matter.
Lines WithoutPassing(Lines calls)
{
    std::erase(calls, "Brush#1.AddRef() = 0x2");
    std::erase(calls, "Brush#1.Release() = 0x1");
    return calls;
}

class DrawingTest : public test::LinkedTest {
protected:
    DrawingTest() { SetUpChain(); }

    Lines LineCalls(unsigned width1, unsigned colour1, unsigned width2, unsigned colour2)
    {
        return WithoutPassing(CallsOf([=](DirectComposition& drawn) {
            drawn.DrawLine(20, 50, width1, colour1, 220, 50, width2, colour2);
        }));
    }

    Lines PathCalls(std::vector<PenData> samples)
    {
        return CallsOf([&](DirectComposition& drawn) { drawn.DrawPenData(&samples, 6, 0x000000FF); });
    }
};

PenData Touch(int x, int y)
{
    PenData sample{};
    sample.x = x;
    sample.y = y;
    sample.pressure = 1;
    return sample;
}

TEST_F(DrawingTest, LineMixesColoursAndWidthsOfItsEnds)
{
    EXPECT_THAT(LineCalls(3, 0xFF0000FF, 4, 0xFF00FF00),
                ElementsAre("DeviceContext#1.CreateSolidColorBrush({1, 0.498039, 0, 1}, null) = 0 -> Brush#1",
                            "DeviceContext#1.DrawLine({20, 50}, {220, 50}, Brush#1, 3.5, StrokeStyle#1)"));
}

TEST_F(DrawingTest, FirstLineInTheRememberedColourStillMakesABrush)
{
    // Opaque black is what the cache remembers before there is a brush.
    EXPECT_THAT(
        LineCalls(4, 0xFF000000, 4, 0xFF000000),
        testing::Contains("DeviceContext#1.CreateSolidColorBrush({0, 0, 0, 1}, null) = 0 -> Brush#1"));
}

TEST_F(DrawingTest, TwoLinesOfOneColourMakeOneBrush)
{
    LineCalls(4, 0xFF102030, 4, 0xFF102030);
    EXPECT_THAT(LineCalls(6, 0xFF102030, 6, 0xFF102030),
                ElementsAre("DeviceContext#1.DrawLine({20, 50}, {220, 50}, Brush#1, 6, StrokeStyle#1)"));
}

TEST_F(DrawingTest, ColoursThatDifferInAlphaAloneAreTwo)
{
    LineCalls(4, 0xFF102030, 4, 0xFF102030);
    LineCalls(4, 0x7F102030, 4, 0x7F102030);
    EXPECT_THAT(composition.Held(), testing::Contains(testing::Pair("Brush#2", 1)));
    EXPECT_THAT(composition.Held(), testing::Not(testing::Contains(testing::Key("Brush#1"))));
}

TEST_F(DrawingTest, LinesAndRectanglesShareTheBrush)
{
    LineCalls(4, 0xFF102030, 4, 0xFF102030);
    EXPECT_THAT(CallsOf([](DirectComposition& drawn) { drawn.FillRect(1, 2, 30, 40, 0xFF102030); }),
                ElementsAre("DeviceContext#1.FillRectangle({1, 2, 30, 40}, Brush#1)"));
}

TEST_F(DrawingTest, OpaqueLineShowsItsColour)
{
    LineCalls(8, 0xFF332211, 8, 0xFF332211);
    EXPECT_EQ(PixelAt(120, 50), 0xFF112233U);
}

TEST_F(DrawingTest, LineOfHalfAlphaShowsHalf)
{
    LineCalls(8, 0x7F0000FF, 8, 0x7F0000FF);
    EXPECT_NEAR(PixelAt(120, 50) >> 24, 0x7F, 1);
    EXPECT_NEAR((PixelAt(120, 50) >> 16) & 0xFF, 0x7F, 1);
    EXPECT_EQ(PixelAt(120, 50) & 0xFFFF, 0U);
}

TEST_F(DrawingTest, LineOfAlpha0DrawsNothing)
{
    LineCalls(8, 0x000000FF, 8, 0x000000FF);
    EXPECT_EQ(composition.LastFrame().Count(0), static_cast<std::size_t>(Width * Height));
}

TEST_F(DrawingTest, ErasingInTheKeyLeavesTheInkBelow)
{
    backEnd->Clear();
    backEnd->DrawLine(20, 50, 8, 0xFF0000FF, 220, 50, 8, 0xFF0000FF);
    backEnd->DrawLine(20, 50, 8, 0x00FF00FF, 220, 50, 8, 0x00FF00FF);
    backEnd->Present();
    EXPECT_EQ(PixelAt(120, 50), 0xFFFF0000U);
}

TEST_F(DrawingTest, HalfAlphaOverInkMixes)
{
    backEnd->Clear();
    backEnd->FillRect(0, 0, 100, 100, 0xFFFF0000);
    backEnd->FillRect(0, 0, 100, 100, 0x8000FF00);
    backEnd->Present();
    EXPECT_EQ(PixelAt(50, 50) >> 24, 0xFFU);
    EXPECT_NEAR((PixelAt(50, 50) >> 8) & 0xFF, 0x80, 1);
    EXPECT_NEAR(PixelAt(50, 50) & 0xFF, 0x7F, 1);
}

TEST_F(DrawingTest, RectangleCoversItsPlaceAndNoMore)
{
    CallsOf([](DirectComposition& drawn) { drawn.FillRect(10, 20, 30, 50, 0xFF0000FF); });
    EXPECT_EQ(composition.LastFrame().Count(0xFFFF0000), 20U * 30U);
    EXPECT_EQ(PixelAt(10, 20), 0xFFFF0000U);
    EXPECT_EQ(PixelAt(29, 49), 0xFFFF0000U);
    EXPECT_EQ(PixelAt(30, 50), 0U);
}

TEST_F(DrawingTest, RectangleWithoutABrushIsLeftOut)
{
    composition.Answer("DeviceContext.CreateSolidColorBrush", E_OUTOFMEMORY);
    CallsOf([](DirectComposition& drawn) { drawn.FillRect(10, 20, 30, 50, 0xFF0000FF); });
    EXPECT_EQ(composition.LastFrame().Count(0), static_cast<std::size_t>(Width * Height));
}

TEST_F(DrawingTest, PathOfOneSampleIsAFiguresStartAlone)
{
    EXPECT_THAT(PathCalls({Touch(40, 50)}),
                ElementsAre("D2DFactory#1.CreatePathGeometry() = 0 -> Path#1", "Path#1.Open() = 0 -> Sink#1",
                            "Sink#1.SetFillMode(1)", "Sink#1.SetSegmentFlags(2)",
                            "Sink#1.BeginFigure({40, 50}, 0)", "Sink#1.EndFigure(0)", "Sink#1.Close() = 0",
                            "DeviceContext#1.CreateSolidColorBrush({1, 0, 0, 0.5}, null) = 0 -> Brush#1",
                            "D2DFactory#1.CreateStrokeStyle({start=2, end=2, dash=0, join=0, miter=10, "
                            "style=0, offset=0}, null, 0) = 0 -> StrokeStyle#2",
                            "DeviceContext#1.DrawGeometry(Path#1, Brush#1, 6, StrokeStyle#2)",
                            "StrokeStyle#2.Release() = 0", "Brush#1.Release() = 0", "Sink#1.Release() = 0x1",
                            "Path#1.Release() = 0"));
}

TEST_F(DrawingTest, PathMayStartAtTheOrigin)
{
    const Lines calls = PathCalls({Touch(0, 0), Touch(5, 0), Touch(5, 5), Touch(10, 10)});
    EXPECT_THAT(calls, testing::Contains("Sink#1.BeginFigure({0, 0}, 0)"));
    EXPECT_EQ(std::count_if(calls.begin(), calls.end(),
                            [](const std::string& call) { return call.starts_with("Sink#1.AddLine"); }),
              1);
    EXPECT_THAT(calls, testing::Contains("Sink#1.AddLine({10, 10})"));
}

TEST_F(DrawingTest, PathOfNoSamplesIsNothing)
{
    EXPECT_THAT(PathCalls({}), IsEmpty());
    EXPECT_THAT(CallsOf([](DirectComposition& drawn) { drawn.DrawPenData(nullptr, 6, 0); }), IsEmpty());
}

TEST_F(DrawingTest, PathDropsTheColoursAlpha)
{
    std::vector<PenData> samples = {Touch(40, 50), Touch(60, 70)};
    EXPECT_THAT(
        CallsOf([&](DirectComposition& drawn) { drawn.DrawPenData(&samples, 6, 0xFF00FF00); }),
        testing::Contains("DeviceContext#1.CreateSolidColorBrush({0, 1, 0, 0.5}, null) = 0 -> Brush#1"));
}

TEST_F(DrawingTest, TextIsOneLineOfSquareCharacters)
{
    EXPECT_THAT(CallsOf([](DirectComposition& drawn) { drawn.DrawText(L"Hello", 10, 20, 0x00112233); }),
                testing::AllOf(
                    testing::Contains("DeviceContext#1.CreateSolidColorBrush({0.2, 0.133333, 0.0666667, 1}, "
                                      "null) = 0 -> Brush#1"),
                    testing::Contains("DeviceContext#1.DrawText(\"Hello\", 5, TextFormat#1, {10, 20, 130, "
                                      "44}, Brush#1, 0, 0)"),
                    testing::Contains("Brush#1.Release() = 0")));
}

TEST_F(DrawingTest, TextShowsInItsLine)
{
    CallsOf([](DirectComposition& drawn) { drawn.DrawText(L"Hello", 10, 20, 0x000000FF); });
    std::size_t drawn = 0;
    for (UINT y = 20; y < 44; ++y) {
        for (UINT x = 10; x < 130; ++x) {
            drawn += PixelAt(x, y) != 0 ? 1 : 0;
        }
    }
    EXPECT_GT(drawn, 0U);
    EXPECT_EQ(PixelAt(200, 30), 0U);
}

TEST_F(DrawingTest, TextMayBeEmpty)
{
    EXPECT_THAT(CallsOf([](DirectComposition& drawn) { drawn.DrawText(L"", -5, -6, 0); }),
                testing::Contains(
                    "DeviceContext#1.DrawText(\"\", 0, TextFormat#1, {-5, -6, -5, 18}, Brush#1, 0, 0)"));
}

TEST_F(DrawingTest, TextLeavesTheLinesBrushAlone)
{
    LineCalls(4, 0xFF102030, 4, 0xFF102030);
    CallsOf([](DirectComposition& drawn) { drawn.DrawText(L"Hello", 10, 20, 0x00112233); });
    EXPECT_EQ(LineCalls(4, 0xFF102030, 4, 0xFF102030).size(), 1U);
}

TEST_F(DrawingTest, TextWithoutABrushIsLeftOut)
{
    composition.Answer("DeviceContext.CreateSolidColorBrush", E_OUTOFMEMORY);
    EXPECT_THAT(CallsOf([](DirectComposition& drawn) { drawn.DrawText(L"Hello", 10, 20, 0); }),
                testing::Not(testing::Contains(testing::HasSubstr("DrawText"))));
}

TEST_F(DrawingTest, SetMemoryDCMeansNothing)
{
    EXPECT_THAT(CallsOf([](DirectComposition& drawn) { drawn.SetMemoryDC(nullptr); }), IsEmpty());
}

} // namespace

} // namespace zq::LM
