// The Direct2D back-end in the life of the overlay: its pixels on the screen, its bitmap, and a set-up that
// failed.
#include "support/hook/import_hook.h"
#include "support/library/back_end_test.h"
#include "support/row_name.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

using Lines = std::vector<std::string>;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;

class Direct2DOverlay : public BackEndTest {
protected:
    Direct2DOverlay() : BackEndTest(Direct2DBackEnd) {}

    // Those of the render target.
    Lines TargetCalls()
    {
        Lines calls = graphics->Take();
        std::erase_if(calls, [](const std::string& call) { return !call.starts_with("DCRenderTarget#"); });
        return calls;
    }

    // What each line of a frame is drawn with, from "DrawLine(" on.
    Lines LinesOfStroke()
    {
        graphics->Take();
        Input({Sample(200, 200), Sample(300, 200)});
        PaintOnce();
        Lines lines;
        for (const RecordedCall& call : graphics->Calls()) {
            if (call.method == "DrawLine") {
                lines.push_back(call.arguments);
            }
        }
        return lines;
    }
};

TEST_F(Direct2DOverlay, EveryPixelIsInkOrSeenThrough)
{
    params.inkColor = 0x00402010;
    Apply();
    InputAndPaint({Sample(200, 100), Sample(301, 154), Sample(222, 307), Sample(430, 199)});
    const Picture picture = Look();
    EXPECT_GT(picture.Count(0x00402010), 3000U);
    EXPECT_EQ(picture.Count(0x00402010) + picture.Count(Green),
              static_cast<std::size_t>(All.right * All.bottom));
}

TEST_F(Direct2DOverlay, FollowsTheScreenWithABitmapOfItsSize)
{
    graphics->Take();
    shell.Move({0, 0, 500, 400});
    Stroke(200, 300, 200);
    const Lines calls = TargetCalls();
    EXPECT_EQ(std::count(calls.begin(), calls.end(), "DCRenderTarget#1.BindDC(*, {0, 0, 500, 400}) = 0"), 1);
    EXPECT_EQ(Look().At(250, 200), Red);
    EXPECT_EQ(Look().At(600, 450), Green);
}

TEST_F(Direct2DOverlay, SwatchIsTwoPointsInGreyAndInTheScreensColour)
{
    Hook<"GetPixel", decltype(GetPixel)> pixel(library.Module());
    pixel.Answer([](HDC, int, int) { return Blue; }); // whatever is on the screen
    params.colorPicker = 1;
    params.cursor = 1;
    Apply();
    graphics->Take();
    InputAndPaint({Sample(200, 200, 0)});
    Lines calls = TargetCalls();
    std::erase_if(calls, [](const std::string& call) {
        return call.find("CreateSolidColorBrush") == std::string::npos &&
               call.find("DrawLine") == std::string::npos;
    });
    EXPECT_THAT(
        calls,
        ElementsAre(
            "DCRenderTarget#1.CreateSolidColorBrush({0.752941, 0.752941, 0.752941, 1}, null) = 0 -> Brush#1",
            "DCRenderTarget#1.DrawLine({168, 168}, {168, 168}, Brush#1, 40, StrokeStyle#1)",
            "DCRenderTarget#1.CreateSolidColorBrush({0, 0, 1, 1}, null) = 0 -> Brush#2",
            "DCRenderTarget#1.DrawLine({168, 168}, {168, 168}, Brush#2, 32, StrokeStyle#2)"));
}

TEST_F(Direct2DOverlay, HollowStrokesOfABrushAsWideAsTheirBandsAreNotErased)
{
    params.line = 0;
    params.outline = 1;
    params.brushSize = 4;
    Apply();
    EXPECT_THAT(LinesOfStroke(), ElementsAre(HasSubstr(", 6, "), HasSubstr(", 4, ")));
}

TEST_F(Direct2DOverlay, HollowStrokesOfANarrowerBrushAreErasedByTheWidestPen)
{
    params.line = 0;
    params.outline = 1;
    params.brushSize = 3;
    Apply();
    EXPECT_THAT(LinesOfStroke(),
                ElementsAre(HasSubstr(", 5, "), HasSubstr(", 3, "), HasSubstr(", 2.14748e+09, ")));
}

// The overlay as it is just after its creation.
class NewDirect2DOverlay : public Direct2DOverlay {
protected:
    void SetUp() override { Start(); }
};

TEST_F(NewDirect2DOverlay, DrawsItsFirstFrameBeforeThereIsABitmap)
{
    EXPECT_THAT(TargetCalls(),
                ElementsAre("DCRenderTarget#1.SetAntialiasMode(1)",
                            "DCRenderTarget#1.SetTextAntialiasMode(3)", "DCRenderTarget#1.BeginDraw()",
                            "DCRenderTarget#1.SetTransform({1, 0, 0, 1, 0, 0})",
                            "DCRenderTarget#1.EndDraw(null, null) = 0x88990001",
                            "DCRenderTarget#1.BindDC(*, {0, 0, 640, 480}) = 0"));
}

class Direct2DOverlayWithoutATarget : public Direct2DOverlay,
                                      public testing::WithParamInterface<const char*> {
protected:
    void BeforeCreation() override { graphics->Answer(GetParam(), E_FAIL); }
};

TEST_P(Direct2DOverlayWithoutATarget, ShowsNothingAndGoesOn)
{
    ASSERT_TRUE(graphics->WereAnswersUsed());
    params.outline = 1;
    params.cursor = 1;
    Apply();
    Stroke(200, 300, 200);
    InputAndPaint({Sample(300, 300, 0)});
    shell.Move({0, 0, 600, 400});
    Refresh();
    Tick();
    EXPECT_TRUE(ShowsNothing());
    Input({Sample(301, 300, 0)});
    PaintWhole();
    EXPECT_FALSE(IsInvalid());
}

TEST_P(Direct2DOverlayWithoutATarget, GivesWayToAnotherBackEnd)
{
    Choose(ChooseGDI);
    Input({Sample(1, 1)});
    Stroke(200, 300, 200);
    EXPECT_EQ(Look().At(250, 200), Red);
}

INSTANTIATE_TEST_SUITE_P(Steps, Direct2DOverlayWithoutATarget,
                         testing::Values("D2D1CreateFactory", "D2DFactory.CreateDCRenderTarget"), RowName());

} // namespace

} // namespace zq::LM::test
