// The back-end's device chain by itself: results, a second set-up, and the state without one.
#include "parts/composition/linked_test.h"
#include "support/log_level.h"
#include "support/recorded_log.h"

#include <algorithm>
#include <stdexcept>

namespace zq::LM {

namespace {

using test::Lines;
using testing::ContainerEq;
using testing::ElementsAre;
using testing::IsEmpty;

class ChainTest : public test::LinkedTest {
protected:
    // The names alone, without arguments and results.
    Lines TakeNames()
    {
        Lines names;
        for (const test::RecordedCall& call : composition.Calls()) {
            names.push_back(call.Name());
        }
        composition.Take();
        return names;
    }

    void EveryDrawing()
    {
        std::vector<PenData> samples(2);
        backEnd->DrawLine(1, 2, 3, 0xFF000000, 4, 5, 6, 0xFF000000);
        backEnd->DrawPenData(&samples, 3, 0xFF000000);
        backEnd->DrawText(L"text", 1, 2, 0xFF000000);
        backEnd->FillRect(1, 2, 3, 4, 0xFF000000);
        backEnd->Resize(window);
    }
};

TEST_F(ChainTest, SetUpAndFramesSayThatTheyWorked)
{
    EXPECT_TRUE(SetUpChain());
    EXPECT_TRUE(backEnd->Clear());
    EXPECT_TRUE(backEnd->Present());
}

TEST_F(ChainTest, NothingHappensBeforeASetUp)
{
    setUps = 0;
    EXPECT_FALSE(backEnd->Clear());
    EXPECT_FALSE(backEnd->Present());
    EveryDrawing();
    EXPECT_THAT(composition.Take(), IsEmpty());
}

TEST_F(ChainTest, NothingIsDrawnWithoutADeviceContext)
{
    setUps = 0;
    composition.Answer("D2DDevice.CreateDeviceContext", E_FAIL);
    EXPECT_FALSE(SetUpChain());
    EXPECT_FALSE(backEnd->Clear());
    EXPECT_FALSE(backEnd->Present());
    EveryDrawing();
    EXPECT_THAT(composition.Take(), IsEmpty());
}

TEST_F(ChainTest, FactoryThatIsPromisedButNotGivenFailsTheSetUp)
{
    setUps = 0;
    composition.Answer("CreateDXGIFactory2", S_OK);
    EXPECT_FALSE(SetUpChain());
    EXPECT_FALSE(backEnd->Clear());
}

TEST_F(ChainTest, NoTextIsDrawnWithoutATextFormat)
{
    composition.Answer("WriteFactory.CreateTextFormat", E_FAIL);
    EXPECT_FALSE(SetUpChain());
    backEnd->Clear();
    composition.Take();
    backEnd->DrawText(L"text", 1, 2, 0);
    EXPECT_THAT(composition.Take(), IsEmpty());
    backEnd->Present();
}

TEST_F(ChainTest, PresentIsTrueForOKAlone)
{
    SetUpChain();
    constexpr HRESULT Occluded = 0x087A0001;
    for (const HRESULT result : {Occluded, S_FALSE, E_FAIL, DXGI_ERROR_DEVICE_REMOVED}) {
        composition.Answer("SwapChain.Present", result);
        backEnd->Clear();
        EXPECT_FALSE(backEnd->Present()) << std::hex << result;
    }
    backEnd->Clear();
    EXPECT_TRUE(backEnd->Present());
}

TEST_F(ChainTest, FailedSetUpMayBeTriedAgain)
{
    composition.Answer("WriteFactory.CreateTextFormat", E_FAIL);
    EXPECT_FALSE(SetUpChain());
    EXPECT_TRUE(SetUpChain());
    setUps = 2;
    backEnd->Clear();
    EXPECT_TRUE(backEnd->Present());
}

TEST_F(ChainTest, SecondSetUpDrawsWithABrushOfItsOwnContext)
{
    constexpr unsigned Colour = 0xFF123456;
    SetUpChain();
    setUps = 3;
    for (int i = 0; i < 2; ++i) {
        backEnd->InitTransparentWindow(window, 0);
        TakeNames();
        backEnd->Clear();
        backEnd->DrawLine(1, 2, 3, Colour, 4, 5, 6, Colour);
        backEnd->Present();
        const std::string context = "DeviceContext#" + std::to_string(i + 2);
        EXPECT_THAT(TakeNames(), testing::Contains(context + ".CreateSolidColorBrush"));
    }
}

TEST_F(ChainTest, SecondSetUpReleasesEachMemberBeforeItIsMadeAnew)
{
    SetUpChain();
    backEnd->InitTransparentWindow(window, 0);
    setUps = 2;
    EXPECT_THAT(TakeNames(), ContainerEq(Lines{"D3DDevice#1.Release",
                                               "D3D11CreateDevice",
                                               "DxgiDevice#1.Release",
                                               "D3DDevice#2.QueryInterface",
                                               "DxgiFactory#1.Release",
                                               "CreateDXGIFactory2",
                                               "SwapChain#1.Release",
                                               "DxgiFactory#2.CreateSwapChainForComposition",
                                               "D2DFactory#1.Release",
                                               "D2D1CreateFactory",
                                               "D2DDevice#1.Release",
                                               "D2DFactory#2.CreateDevice",
                                               "DeviceContext#1.Release",
                                               "D2DDevice#2.CreateDeviceContext",
                                               "SwapChain#2.GetBuffer",
                                               "DeviceContext#2.CreateBitmapFromDxgiSurface",
                                               "DeviceContext#2.SetTarget",
                                               "Bitmap#2.Release",
                                               "BackBuffer#2.Release",
                                               "CompositionDevice#2.Release",
                                               "DCompositionCreateDevice",
                                               "DCompositionCreateDevice3",
                                               "CompositionDevice3#1.Release",
                                               "CompositionDevice#4.QueryInterface",
                                               "Target#1.Release",
                                               "CompositionDevice#4.CreateTargetForHwnd",
                                               "Visual#1.Release",
                                               "CompositionDevice#4.CreateVisual",
                                               "Visual#2.SetContent",
                                               "Target#2.SetRoot",
                                               "CompositionDevice#4.Commit",
                                               "WriteFactory#1.Release",
                                               "DWriteCreateFactory",
                                               "StrokeStyle#1.Release",
                                               "D2DFactory#2.CreateStrokeStyle",
                                               "TextFormat#1.Release",
                                               "WriteFactory#2.CreateTextFormat"}));
}

TEST_F(ChainTest, SecondSetUpDrawsAndPresents)
{
    SetUpChain();
    EXPECT_TRUE(SetUpChain());
    setUps = 2;
    CallsOf([](DirectComposition& drawn) { drawn.FillRect(10, 20, 30, 50, 0xFF0000FF); });
    EXPECT_EQ(composition.LastFrame().Count(0xFFFF0000), 20U * 30U);
}

TEST_F(ChainTest, SecondSetUpMayServeAnotherWindow)
{
    SetUpChain();
    HWND other = CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"Other", WS_POPUP, 0, 0, 90, 70, nullptr,
                                 nullptr, nullptr, nullptr);
    EXPECT_TRUE(backEnd->InitTransparentWindow(other, 0));
    setUps = 2;
    backEnd->Clear();
    backEnd->Present();
    EXPECT_EQ(composition.LastFrame().width, 90U);
    EXPECT_EQ(composition.LastFrame().height, 70U);
    DestroyWindow(other);
}

TEST_F(ChainTest, ResizeLooksAtTheBoundWindowAlone)
{
    SetUpChain();
    HWND other = CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"Other", WS_POPUP, 0, 0, 90, 70, nullptr,
                                 nullptr, nullptr, nullptr);
    backEnd->Resize(other);
    EXPECT_THAT(composition.Take(), ElementsAre("SwapChain#1.GetDesc1() = 0"));
    SetWindowPos(window, nullptr, 0, 0, 100, 110, SWP_NOZORDER | SWP_NOACTIVATE);
    backEnd->Resize(other);
    EXPECT_THAT(composition.Take(), testing::Contains("SwapChain#1.ResizeBuffers(2, 100, 110, 0, 0) = 0"));
    DestroyWindow(other);
}

TEST_F(ChainTest, ResizeRaisesWhenTheTargetCannotBeMade)
{
    SetUpChain();
    for (const char* step : {"SwapChain.GetBuffer", "DeviceContext.CreateBitmapFromDxgiSurface"}) {
        composition.Answer(step, E_FAIL);
        RECT place{};
        GetWindowRect(window, &place);
        SetWindowPos(window, nullptr, 0, 0, place.right - place.left - 10, 100,
                     SWP_NOZORDER | SWP_NOACTIVATE);
        try {
            backEnd->Resize(window);
            ADD_FAILURE() << step << " failed unnoticed";
        } catch (const std::runtime_error& error) {
            EXPECT_STREQ(error.what(), "unknown");
        }
    }
}

TEST_F(ChainTest, DestructionReleasesInAFixedOrder)
{
    SetUpChain();
    CallsOf([](DirectComposition& drawn) { drawn.FillRect(10, 20, 30, 50, 0xFF0000FF); });
    composition.Take();
    backEnd.reset();
    EXPECT_THAT(TakeNames(),
                ElementsAre("WriteFactory#1.Release", "TextFormat#1.Release", "StrokeStyle#1.Release",
                            "Brush#1.Release", "Visual#1.Release", "CompositionDevice3#1.Release",
                            "CompositionDevice#2.Release", "DeviceContext#1.Release", "Target#1.Release",
                            "D2DDevice#1.Release", "D2DFactory#1.Release", "SwapChain#1.Release",
                            "DxgiFactory#1.Release", "DxgiDevice#1.Release", "D3DDevice#1.Release"));
}

TEST_F(ChainTest, ConstructionAndDestructionAreLogged)
{
    setUps = 0;
    const test::LogLevel level(NORMAL);
    const test::RecordedLog log;
    backEnd = std::make_unique<DirectComposition>(); // the one before ends after the new one's beginning
    backEnd.reset();
    EXPECT_THAT(log.Texts(),
                ElementsAre("DirectCompositionImpl(Constructor)\n", "~DirectCompositionImpl(Destructor)\n",
                            "~DirectCompositionImpl(Destructor)\n"));
}

} // namespace

} // namespace zq::LM
