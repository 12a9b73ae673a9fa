// Frames of the DirectComposition back-end: lines, brushes, alpha and how they are presented.
#include "support/hook/import_hook.h"
#include "support/library/composition_test.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

using testing::ElementsAre;

constexpr HRESULT Occluded = 0x087A0001; // a success, but not S_OK

class FramesTest : public CompositionTest {
protected:
    FramesTest() { CreateQuietly(); }
    ~FramesTest() override { library.SetDebugLevel(0); }
};

TEST_F(FramesTest, AreClearedDrawnEndedAndPresented)
{
    Lines calls = FrameWith({Sample(100, 100), Sample(150, 120)});
    // The brush may pass through further references on its way to where it is kept.
    std::erase(calls, "Brush#1.AddRef() = 0x2");
    std::erase(calls, "Brush#1.Release() = 0x1");
    EXPECT_THAT(calls,
                ElementsAre("DeviceContext#1.BeginDraw()", "DeviceContext#1.Clear(null)",
                            "DeviceContext#1.CreateSolidColorBrush({0.12549, 0.12549, 0.12549, 1}, null) = 0 "
                            "-> Brush#1",
                            "DeviceContext#1.DrawLine({100, 100}, {150, 120}, Brush#1, 10, StrokeStyle#1)",
                            "DeviceContext#1.EndDraw(null, null) = 0", "SwapChain#1.Present(0, 0) = 0"));
}

TEST_F(FramesTest, ReleaseTheOldBrushBeforeTheyMakeAnother)
{
    FrameWith({Sample(100, 100), Sample(150, 120)});
    SetField(&LM_Params::inkColor, 0x000000FF);
    Lines calls = Frame();
    std::erase_if(calls, [](const std::string& call) {
        return call != "Brush#1.Release() = 0" && call.find("CreateSolidColorBrush") == std::string::npos;
    });
    EXPECT_THAT(calls,
                ElementsAre("Brush#1.Release() = 0",
                            "DeviceContext#1.CreateSolidColorBrush({1, 0, 0, 1}, null) = 0 -> Brush#2"));
}

TEST_F(FramesTest, AreUnaffectedByABrushThatCannotBeMade)
{
    composition.Answer("DeviceContext.CreateSolidColorBrush", E_OUTOFMEMORY);
    FrameWith({Sample(100, 100), Sample(200, 100)});
    EXPECT_EQ(PixelAt(150, 100), 0U);
    Frame(); // tried again
    EXPECT_EQ(PixelAt(150, 100), 0xFF202020U);
}

TEST_F(FramesTest, PresentSaysNothingOfASuccess)
{
    library.SetDebugLevel(NormalLevel);
    Frame();
    EXPECT_EQ(LinesLike("Exception is thrown!\n"), 0U);
}

TEST_F(FramesTest, PresentTakesASuccessOtherThanOKForAFailure)
{
    library.SetDebugLevel(NormalLevel);
    composition.Answer("SwapChain.Present", Occluded);
    EXPECT_THAT(Frame(), testing::Contains("SwapChain#1.Present(0, 0) = 0x87a0001"));
    EXPECT_EQ(LinesLike("Exception is thrown!\n"), 1U);
}

TEST_F(FramesTest, PresentThatFailsRecreatesNothing)
{
    composition.Answer("SwapChain.Present", DXGI_ERROR_DEVICE_REMOVED);
    EXPECT_EQ(Frame(),
              (Lines{"DeviceContext#1.BeginDraw()", "DeviceContext#1.Clear(null)",
                     "DeviceContext#1.EndDraw(null, null) = 0", "SwapChain#1.Present(0, 0) = 0x887a0005"}));
}

TEST_F(FramesTest, PresentThatFailsWithADeviceLostSaysThatItFailed)
{
    library.SetDebugLevel(NormalLevel);
    composition.Answer("SwapChain.Present", DXGI_ERROR_DEVICE_REMOVED);
    Frame();
    EXPECT_EQ(LinesLike("Exception is thrown!\n"), 1U);
    EXPECT_EQ(LinesLike("Device-Lost occured.\n"), 0U);
}

TEST_F(FramesTest, GoOnAfterAFailedPresent)
{
    composition.Answer("SwapChain.Present", E_FAIL, 1, 3);
    FrameWith({Sample(100, 100), Sample(200, 100)});
    Frame();
    Frame();
    const unsigned serial = composition.LastFrame().serial;
    Frame();
    EXPECT_EQ(composition.LastFrame().serial, serial + 1);
    EXPECT_EQ(PixelAt(150, 100), 0xFF202020U);
}

TEST_F(FramesTest, ArePresentedAlthoughDrawingFailed)
{
    library.SetDebugLevel(NormalLevel);
    composition.Answer("DeviceContext.EndDraw", E_FAIL);
    EXPECT_THAT(Frame(), testing::Contains("SwapChain#1.Present(0, 0) = 0"));
    EXPECT_EQ(LinesLike("Exception is thrown!\n"), 0U);
}

TEST_F(FramesTest, AreNotDrawnForAnInstanceThatEndsWhileItsPaintBegins)
{
    Hook<"BeginPaint", decltype(BeginPaint)> paints(library.Module());
    paints.Answer([&](HWND window, PAINTSTRUCT* paint) {
        const HDC dc = paints.Real(window, paint);
        library.Destroy(); // as the host may when the system asks its windows to erase themselves
        return dc;
    });
    EXPECT_THAT(Frame(), testing::Not(testing::Contains("DeviceContext#1.BeginDraw()")));
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
}

} // namespace

} // namespace zq::LM::test
