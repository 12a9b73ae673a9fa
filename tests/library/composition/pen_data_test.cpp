// The whole pen trace as one half-transparent path: drawn when outlines are asked for without strokes.
#include "support/library/composition_test.h"

namespace zq::LM::test {

namespace {

using testing::ElementsAre;

class PenDataTest : public CompositionTest {
protected:
    PenDataTest()
    {
        CreateQuietly();
        SetField(&LM_Params::line, 0);
        SetField(&LM_Params::outline, 1);
        SetField(&LM_Params::cursor, 0);
        SetField(&LM_Params::brushSize, 8);
        SetField(&LM_Params::inkColor, 0x000000FF);
    }

    // The points of the path: where it starts and where lines lead.
    Lines PointsOf(const std::vector<LM_PenData>& samples)
    {
        Lines points;
        Input(samples);
        UpdateWindow(library.GetWindowHandle());
        for (const RecordedCall& call : composition.Calls()) {
            if (call.Step() == "Sink.BeginFigure" || call.Step() == "Sink.AddLine") {
                points.push_back(call.method + ' ' + call.arguments);
            }
        }
        return points;
    }
};

TEST_F(PenDataTest, IsOnePathOfHalfOpacity)
{
    EXPECT_THAT(FrameWith({Sample(100, 100), Sample(120, 140), Sample(160, 150)}),
                ElementsAre("DeviceContext#1.BeginDraw()", "DeviceContext#1.Clear(null)",
                            "D2DFactory#1.CreatePathGeometry() = 0 -> Path#1", "Path#1.Open() = 0 -> Sink#1",
                            "Sink#1.SetFillMode(1)", "Sink#1.SetSegmentFlags(2)",
                            "Sink#1.BeginFigure({100, 100}, 0)", "Sink#1.AddLine({120, 140})",
                            "Sink#1.AddLine({160, 150})", "Sink#1.EndFigure(0)", "Sink#1.Close() = 0",
                            "DeviceContext#1.CreateSolidColorBrush({1, 0, 0, 0.5}, null) = 0 -> Brush#1",
                            "D2DFactory#1.CreateStrokeStyle({start=2, end=2, dash=0, join=0, miter=10, "
                            "style=0, offset=0}, null, 0) = 0 -> StrokeStyle#2",
                            "DeviceContext#1.DrawGeometry(Path#1, Brush#1, 8, StrokeStyle#2)",
                            "StrokeStyle#2.Release() = 0", "Brush#1.Release() = 0", "Sink#1.Release() = 0x1",
                            "Path#1.Release() = 0", "DeviceContext#1.EndDraw(null, null) = 0",
                            "SwapChain#1.Present(0, 0) = 0"));
}

TEST_F(PenDataTest, OfOneSampleIsNotDrawnByTheEngine)
{
    EXPECT_THAT(PointsOf({Sample(100, 100)}), testing::IsEmpty());
}

TEST_F(PenDataTest, AddsAPointOnlyWhereBothCoordinatesChange)
{
    EXPECT_THAT(PointsOf({Sample(100, 100), Sample(105, 100), Sample(105, 105), Sample(110, 110)}),
                ElementsAre("BeginFigure {100, 100}, 0", "AddLine {110, 110}"));
}

TEST_F(PenDataTest, ComparesWithTheSampleBeforeNotWithTheLastPoint)
{
    // (105, 105) is away from the start in both, and yet a step along one axis.
    EXPECT_THAT(PointsOf({Sample(100, 100), Sample(105, 100), Sample(105, 105)}),
                ElementsAre("BeginFigure {100, 100}, 0"));
}

TEST_F(PenDataTest, EndsAtTheFirstSampleThatDoesNotTouch)
{
    EXPECT_THAT(PointsOf({Sample(100, 100), Sample(110, 110), Sample(120, 120, 0), Sample(130, 130),
                          Sample(140, 140)}),
                ElementsAre("BeginFigure {100, 100}, 0", "AddLine {110, 110}", "AddLine {120, 120}"));
}

TEST_F(PenDataTest, EndsAtOnceWhenTheFirstSampleDoesNotTouch)
{
    EXPECT_THAT(PointsOf({Sample(100, 100, 0), Sample(110, 110), Sample(120, 120)}),
                ElementsAre("BeginFigure {100, 100}, 0"));
}

TEST_F(PenDataTest, HasNeitherOffsetNorPressureNorZebra)
{
    SetField(&LM_Params::useOffset, 1);
    SetField(&LM_Params::usePressure, 1);
    SetField(&LM_Params::zebraMode, 1);
    Input({Sample(100, 100, 10), Sample(120, 140, 10)});
    clock.Advance(15); // a band of the contrast colour
    const Lines calls = Frame();
    EXPECT_THAT(calls, testing::Contains("Sink#1.BeginFigure({100, 100}, 0)"));
    EXPECT_THAT(calls, testing::Contains("DeviceContext#1.DrawGeometry(Path#1, Brush#1, 8, StrokeStyle#2)"));
    EXPECT_THAT(calls, testing::Contains(
                           "DeviceContext#1.CreateSolidColorBrush({1, 0, 0, 0.5}, null) = 0 -> Brush#1"));
}

TEST_F(PenDataTest, LeavesTheLinesBrushAlone)
{
    FrameWith({Sample(100, 100), Sample(120, 140)});
    SetField(&LM_Params::line, 1);
    SetField(&LM_Params::outline, 0);
    Frame();
    EXPECT_THAT(composition.Held(), testing::Contains(testing::Pair("Brush#2", 1)));
}

TEST_F(PenDataTest, IsLeftOutWhenItsPathCannotBeMade)
{
    composition.Answer("D2DFactory.CreatePathGeometry", E_OUTOFMEMORY);
    composition.Answer("Path.Open", E_OUTOFMEMORY);
    FrameWith({Sample(100, 100), Sample(120, 140)});
    Frame();
    EXPECT_EQ(composition.LastFrame().Count(0), 640U * 480U);
    Frame();
    EXPECT_NE(composition.LastFrame().Count(0), 640U * 480U);
}

} // namespace

} // namespace zq::LM::test
