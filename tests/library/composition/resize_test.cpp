// How the swap chain follows the overlay's size.
#include "support/library/composition_test.h"
#include "support/row_name.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

using testing::ElementsAre;

class ResizeTest : public CompositionTest {
protected:
    ResizeTest()
    {
        CreateQuietly();
        library.SetDebugLevel(NormalLevel);
        debugger.Clear();
    }
    ~ResizeTest() override { library.SetDebugLevel(0); }

    // The calls of the next paint that come before its frame.
    Lines ResizeCalls()
    {
        Lines calls = Frame();
        calls.erase(std::find(calls.begin(), calls.end(), "DeviceContext#1.BeginDraw()"), calls.end());
        return calls;
    }
};

TEST_F(ResizeTest, GivesTheBuffersTheWindowsSize)
{
    shell.Move({10, 20, 310, 220});
    EXPECT_THAT(ResizeCalls(),
                ElementsAre("SwapChain#1.GetDesc1() = 0", "DeviceContext#1.SetTarget(null)",
                            "SwapChain#1.ResizeBuffers(2, 300, 200, 0, 0) = 0",
                            "SwapChain#1.GetBuffer(0, {ABA496DD-B617-4CB8-A866-BC44D7EB1FA2}) = 0 -> "
                            "BackBuffer#2",
                            "DeviceContext#1.CreateBitmapFromDxgiSurface(BackBuffer#2, {format=87, alpha=1, "
                            "dpiX=0, dpiY=0, options=3} context null) = 0 -> Bitmap#2",
                            "DeviceContext#1.SetTarget(Bitmap#2)", "Bitmap#2.Release() = 0x1",
                            "BackBuffer#2.Release() = 0"));
    EXPECT_EQ(composition.LastFrame().width, 300U);
    EXPECT_EQ(composition.LastFrame().height, 200U);
}

TEST_F(ResizeTest, InkIsDrawnInTheNewBuffers)
{
    shell.Move({10, 20, 810, 620});
    FrameWith({Sample(700, 550), Sample(760, 550)});
    EXPECT_EQ(PixelAt(730, 550), 0xFF202020U);
}

TEST_F(ResizeTest, LeavesTheBuffersOfAnUnchangedSize)
{
    shell.Move({10, 20, 650, 500}); // the same 640 x 480
    EXPECT_THAT(ResizeCalls(), ElementsAre("SwapChain#1.GetDesc1() = 0"));
}

TEST_F(ResizeTest, IsNotAskedForWithoutAScreenChange) { EXPECT_THAT(ResizeCalls(), testing::IsEmpty()); }

TEST_F(ResizeTest, FollowsAChangeOfOneSideAlone)
{
    shell.Move({200, 60, 840, 541});
    Frame();
    EXPECT_EQ(composition.LastFrame().width, 640U);
    EXPECT_EQ(composition.LastFrame().height, 481U);
}

TEST_F(ResizeTest, EndsWhenThereIsNoDescription)
{
    composition.Answer("SwapChain.GetDesc1", E_FAIL);
    shell.Move({10, 20, 310, 220});
    EXPECT_THAT(ResizeCalls(), ElementsAre("SwapChain#1.GetDesc1() = 0x80004005"));
    EXPECT_EQ(composition.LastFrame().width, 640U);
}

class LostDeviceTest : public ResizeTest, public testing::WithParamInterface<HRESULT> {};

TEST_P(LostDeviceTest, IsNotedAndNotReplaced)
{
    composition.Answer("SwapChain.ResizeBuffers", GetParam());
    shell.Move({10, 20, 310, 220});
    const Lines calls = ResizeCalls();
    ASSERT_EQ(calls.size(), 3U);
    EXPECT_EQ(calls[1], "DeviceContext#1.SetTarget(null)");
    EXPECT_TRUE(calls[2].starts_with("SwapChain#1.ResizeBuffers(2, 300, 200, 0, 0) = 0x887a000")) << calls[2];
    EXPECT_EQ(LinesLike("Device-Lost occured.\n"), 1U);
}

TEST_P(LostDeviceTest, LeavesDrawingWithoutATargetAndHarmless)
{
    composition.Answer("SwapChain.ResizeBuffers", GetParam());
    shell.Move({10, 20, 310, 220});
    Frame();
    FrameWith({Sample(100, 100), Sample(150, 120)});
    EXPECT_EQ(composition.Count("DeviceContext.SetTarget"), 0U);
    EXPECT_FALSE(IsInvalid());
    EXPECT_EQ(composition.LastFrame().Count(0), composition.LastFrame().pixels.size());
}

TEST_P(LostDeviceTest, IsAtTheLowestLevelOfTheLog)
{
    library.SetDebugLevel(1);
    composition.Answer("SwapChain.ResizeBuffers", GetParam());
    shell.Move({10, 20, 310, 220});
    Frame();
    EXPECT_EQ(LinesLike("Device-Lost occured.\n"), 1U);
}

TEST_P(LostDeviceTest, IsOverWithTheNextRebuild)
{
    composition.Answer("SwapChain.ResizeBuffers", GetParam());
    shell.Move({10, 20, 310, 220});
    Frame();
    Choose(ChooseGDI);
    Choose(ChooseDirectComposition);
    Input({Sample(1, 1)});
    setUps = 2;
    library.SetDebugLevel(0); // information would lie over the ink
    FrameWith({Sample(100, 100), Sample(150, 100)});
    EXPECT_EQ(PixelAt(125, 100), 0xFF202020U);
}

INSTANTIATE_TEST_SUITE_P(Results, LostDeviceTest,
                         testing::Values(DXGI_ERROR_DEVICE_REMOVED, DXGI_ERROR_DEVICE_RESET),
                         [](const testing::TestParamInfo<HRESULT>& tested) {
                             return tested.param == DXGI_ERROR_DEVICE_REMOVED ? "Removed" : "Reset";
                         });

TEST_F(ResizeTest, MakesTheTargetAgainAfterAnyOtherFailure)
{
    composition.Answer("SwapChain.ResizeBuffers", E_FAIL);
    shell.Move({10, 20, 310, 220});
    FrameWith({Sample(100, 100), Sample(150, 100)});
    EXPECT_EQ(LinesLike("Device-Lost occured.\n"), 0U);
    library.SetDebugLevel(0); // information lies over the ink
    Frame();
    EXPECT_EQ(composition.LastFrame().width, 640U); // the old buffers
    EXPECT_EQ(PixelAt(125, 100), 0xFF202020U);
}

class FailingResizeTest : public ResizeTest, public testing::WithParamInterface<const char*> {};

TEST_P(FailingResizeTest, IsHeldByTheWindow)
{
    composition.Answer(GetParam(), E_FAIL);
    shell.Move({10, 20, 310, 220});
    EXPECT_NO_THROW(Frame());
    EXPECT_TRUE(IsInvalid()); // this paint is lost, the next one comes by itself
    PumpMessages();
    EXPECT_FALSE(IsInvalid());
}

TEST_P(FailingResizeTest, SaysNothing)
{
    composition.Answer(GetParam(), E_FAIL);
    shell.Move({10, 20, 310, 220});
    Frame();
    EXPECT_EQ(LinesLike("Exception is thrown!\n"), 0U);
    EXPECT_EQ(LinesLike("InitTransparentWindowCore_ is failed."), 0U);
    EXPECT_EQ(LinesLike("Device-Lost occured.\n"), 0U);
}

INSTANTIATE_TEST_SUITE_P(Steps, FailingResizeTest,
                         testing::Values("SwapChain.GetBuffer", "DeviceContext.CreateBitmapFromDxgiSurface"),
                         RowName());

} // namespace

} // namespace zq::LM::test
