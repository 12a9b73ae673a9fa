// The Direct2D back-end's life: its set-up, what follows when a step of it fails, its bindings and its end.
#include "parts/direct2d/d2d_test.h"

#include "support/hook/hooks.h"
#include "support/hook/import_table.h"
#include "support/log_level.h"
#include "support/recorded_log.h"
#include "support/row_name.h"

#include <cstddef>

namespace zq::LM {

namespace {

using test::Lines;
using test::Picture;
using testing::ContainerEq;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

const Lines SetUpCalls = {
    "D2D1CreateFactory(0, {06152247-6F50-465A-9245-118BFD3B6007}, null) = 0 -> D2DFactory#1",
    "DWriteCreateFactory(0, {B859EE5A-D838-4B5B-A2E8-1ADC7D93DB48}) = 0 -> WriteFactory#1",
    "WriteFactory#1.CreateTextFormat(\"Meiryo\", null, 400, 1, 5, 16, \"\") = 0 -> TextFormat#1",
    "D2DFactory#1.CreateDCRenderTarget({type=0, format=87, alpha=3, dpiX=0, dpiY=0, usage=0, level=0}) = 0 "
    "-> DCRenderTarget#1",
    "DCRenderTarget#1.SetAntialiasMode(1)",
    "DCRenderTarget#1.SetTextAntialiasMode(3)",
};

class D2DSetUpTest : public test::D2DTest {
protected:
    // What a whole frame asks for.
    Lines FrameCalls()
    {
        graphics.Take();
        backEnd->Clear();
        backEnd->DrawLine(20, 50, 8, OpaqueRed, 140, 50, 8, OpaqueRed);
        backEnd->DrawText(L"Ink", 10, 10, Red);
        backEnd->Present();
        return graphics.Take();
    }
};

TEST_F(D2DSetUpTest, MakesEverythingInOrder) { EXPECT_THAT(MakeBackEnd(), ContainerEq(SetUpCalls)); }

TEST_F(D2DSetUpTest, NeedsNothingOfACompositionEngine)
{
    EXPECT_EQ(test::FindImport(Program(), "DCompositionCreateDevice"), nullptr);
    EXPECT_EQ(test::FindImport(Program(), "D3D11CreateDevice"), nullptr);
}

TEST_F(D2DSetUpTest, NothingOfItsLifeIsLogged)
{
    const test::LogLevel level(ALL);
    const test::RecordedLog log;
    MakeBoundBackEnd();
    FrameCalls();
    backEnd.reset();
    EXPECT_THAT(log.Lines(), IsEmpty());
}

TEST_F(D2DSetUpTest, EndReleasesInAFixedOrder)
{
    MakeBoundBackEnd();
    backEnd.reset();
    Lines names;
    for (const test::RecordedCall& call : graphics.Calls()) {
        names.push_back(call.Name());
    }
    EXPECT_THAT(names, ElementsAre("D2DFactory#1.Release", "DCRenderTarget#1.Release",
                                   "WriteFactory#1.Release", "TextFormat#1.Release"));
}

struct FailingStep {
    const char* name;
    std::size_t calls; // of the set-up, the failing one included, up to it
    bool draws;        // strokes still
};

class D2DFailingSetUpTest : public D2DSetUpTest, public testing::WithParamInterface<FailingStep> {
protected:
    D2DFailingSetUpTest()
    {
        graphics.Answer(GetParam().name, E_FAIL);
        setUp = MakeBackEnd();
    }

    Lines setUp;
};

TEST_P(D2DFailingSetUpTest, EndsThereUnlessOnlyTextIsLost)
{
    const Lines expected(SetUpCalls.begin(),
                         SetUpCalls.begin() + static_cast<std::ptrdiff_t>(GetParam().calls - 1));
    ASSERT_GE(setUp.size(), GetParam().calls);
    EXPECT_THAT(Lines(setUp.begin(), setUp.begin() + static_cast<std::ptrdiff_t>(expected.size())),
                ContainerEq(expected));
    EXPECT_THAT(setUp[expected.size()], testing::EndsWith(" = 0x80004005"));
    EXPECT_EQ(setUp.back() == SetUpCalls.back(), GetParam().draws);
}

TEST_P(D2DFailingSetUpTest, LeavesABackEndThatIsHarmless)
{
    const bool draws = GetParam().draws;
    EXPECT_TRUE(backEnd->InitTransparentWindow(window, g_colorKey));
    backEnd->SetMemoryDC(bitmap.DC());
    graphics.Take();
    EXPECT_EQ(backEnd->Clear(), draws);
    backEnd->DrawLine(20, 50, 8, OpaqueRed, 140, 50, 8, OpaqueRed);
    backEnd->DrawText(L"Ink", 10, 10, Red);
    EXPECT_EQ(backEnd->Present(), draws);
    EXPECT_EQ(bitmap.Look().At(80, 50), draws ? Red : Green);
    EXPECT_EQ(graphics.Count("DCRenderTarget.DrawText"), 0U);
    EXPECT_EQ(graphics.Calls().empty(), !draws);
}

INSTANTIATE_TEST_SUITE_P(Steps, D2DFailingSetUpTest,
                         testing::Values(FailingStep{"D2D1CreateFactory", 1, false},
                                         FailingStep{"DWriteCreateFactory", 2, true},
                                         FailingStep{"WriteFactory.CreateTextFormat", 3, true},
                                         FailingStep{"D2DFactory.CreateDCRenderTarget", 4, false}),
                         test::RowName());

TEST_F(D2DSetUpTest, MakesTheWindowSeeThroughInTheKeyAndOpaqueElsewhere)
{
    test::Hooks calls(Program());
    calls.Name(window, "overlay");
    calls.Record<"SetLayeredWindowAttributes">(SetLayeredWindowAttributes);
    MakeBackEnd();
    EXPECT_TRUE(backEnd->InitTransparentWindow(window, g_colorKey));
    EXPECT_THAT(calls.Take(), ElementsAre("SetLayeredWindowAttributes(overlay, 0xFF00FF, 255, 1)"));
}

TEST_F(D2DSetUpTest, BindsToTheBitmapOverTheShellsRectangle)
{
    MakeBackEnd();
    backEnd->SetMemoryDC(bitmap.DC());
    EXPECT_THAT(graphics.Take(), ElementsAre("DCRenderTarget#1.BindDC(*, {0, 0, 160, 100}) = 0"));
}

TEST_F(D2DSetUpTest, AShellBesideTheOriginMovesWhatIsDrawn)
{
    shell.Move({30, 20, 30 + Width, 20 + Height});
    MakeBoundBackEnd();
    const Picture picture =
        PictureOf([](D2D& drawn) { drawn.DrawLine(10, 20, 8, OpaqueRed, 60, 20, 8, OpaqueRed); });
    EXPECT_EQ(picture.At(60, 40), Red);
    EXPECT_EQ(picture.At(35, 20), g_colorKey);
    EXPECT_EQ(picture.At(29, 40), Green) << "what lies outside the rectangle is not cleared";
    EXPECT_EQ(picture.At(60, 19), Green);
}

TEST_F(D2DSetUpTest, WithoutAShellBindsOverTheSmallScreenAtTheOrigin)
{
    shell.Remove();
    MakeBackEnd();
    backEnd->SetMemoryDC(bitmap.DC());
    EXPECT_THAT(graphics.Take(), ElementsAre("DCRenderTarget#1.BindDC(*, {0, 0, 256, 256}) = 0"));
}

TEST_F(D2DSetUpTest, WithoutABitmapStaysBoundToTheOneBefore)
{
    MakeBoundBackEnd();
    backEnd->SetMemoryDC(nullptr);
    EXPECT_THAT(graphics.Take(), IsEmpty());
    FrameCalls();
    EXPECT_EQ(bitmap.Look().At(80, 50), Red);
}

TEST_F(D2DSetUpTest, BindsAnewToANewBitmap)
{
    const test::TestBitmap next(Width, Height, Green);
    MakeBoundBackEnd();
    FrameCalls();
    const Picture before = bitmap.Look();
    backEnd->SetMemoryDC(nullptr);
    backEnd->SetMemoryDC(next.DC());
    EXPECT_THAT(graphics.Take(), ElementsAre("DCRenderTarget#1.BindDC(*, {0, 0, 160, 100}) = 0"));
    backEnd->Clear();
    backEnd->Present();
    EXPECT_EQ(next.Look().Count(g_colorKey), static_cast<std::size_t>(Width * Height));
    EXPECT_EQ(bitmap.Look().Differences(before), 0U);
}

TEST_F(D2DSetUpTest, AFrameBeforeTheFirstBitmapFailsAtItsEndAndDrawsNothing)
{
    MakeBackEnd();
    backEnd->InitTransparentWindow(window, g_colorKey);
    EXPECT_TRUE(backEnd->Clear());
    backEnd->DrawLine(20, 50, 8, OpaqueRed, 140, 50, 8, OpaqueRed);
    backEnd->DrawText(L"Ink", 10, 10, Red);
    EXPECT_FALSE(backEnd->Present());
    EXPECT_THAT(graphics.Take(), ElementsAre("DCRenderTarget#1.BeginDraw()",
                                             "DCRenderTarget#1.SetTransform({1, 0, 0, 1, 0, 0})",
                                             "DCRenderTarget#1.EndDraw(null, null) = 0x88990001"));
    backEnd->SetMemoryDC(bitmap.DC());
    FrameCalls();
    EXPECT_EQ(bitmap.Look().At(80, 50), Red);
}

TEST_F(D2DSetUpTest, AFailedFirstBindingIsAsNone)
{
    MakeBackEnd();
    graphics.Answer("DCRenderTarget.BindDC", E_FAIL);
    backEnd->SetMemoryDC(bitmap.DC());
    EXPECT_THAT(FrameCalls(), Not(Contains(testing::HasSubstr("DrawLine"))));
    EXPECT_EQ(bitmap.Look().Count(Green), static_cast<std::size_t>(Width * Height));
    backEnd->SetMemoryDC(bitmap.DC());
    FrameCalls();
    EXPECT_EQ(bitmap.Look().At(80, 50), Red);
}

TEST_F(D2DSetUpTest, AFailedLaterBindingLeavesTheOneBefore)
{
    const test::TestBitmap next(Width, Height, Green);
    MakeBoundBackEnd();
    graphics.Answer("DCRenderTarget.BindDC", E_FAIL);
    backEnd->SetMemoryDC(next.DC());
    FrameCalls();
    EXPECT_EQ(bitmap.Look().At(80, 50), Red);
    EXPECT_EQ(next.Look().Count(Green), static_cast<std::size_t>(Width * Height));
}

TEST_F(D2DSetUpTest, AnEmptyShellIsNoPlaceToDraw)
{
    shell.Move({0, 0, 0, 0});
    MakeBoundBackEnd();
    FrameCalls();
    EXPECT_EQ(bitmap.Look().Count(Green), static_cast<std::size_t>(Width * Height));
}

} // namespace

} // namespace zq::LM
