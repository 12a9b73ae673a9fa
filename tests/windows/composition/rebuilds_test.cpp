// The back-end in the life of the overlay: its end, changes from and to another back-end, and a system
// without a composition engine.
#include "support/object_counts.h"
#include "windows/composition/composition_test.h"
#include "windows/composition/leftovers.h"

namespace zq::LM::test {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr unsigned NormalLevel = 2;

class RebuildsTest : public CompositionTest {
protected:
    ~RebuildsTest() override { library.SetDebugLevel(0); }

    void Rebuild(WPARAM command)
    {
        Choose(command);
        Input({Sample(1, 1)});
        PumpMessages();
    }
};

TEST_F(RebuildsTest, DestroyingReleasesTheChainInAFixedOrder)
{
    CreateQuietly();
    FrameWith({Sample(100, 100), Sample(150, 120)});
    composition.Take();
    DestroyAndForget();
    Lines names;
    for (const RecordedCall& call : composition.Calls()) {
        names.push_back(call.Name());
    }
    EXPECT_THAT(names,
                ElementsAre("WriteFactory#1.Release", "TextFormat#1.Release", "StrokeStyle#1.Release",
                            "Brush#1.Release", "Visual#1.Release", "CompositionDevice3#1.Release",
                            "CompositionDevice#2.Release", "DeviceContext#1.Release", "Target#1.Release",
                            "D2DDevice#1.Release", "D2DFactory#1.Release", "SwapChain#1.Release",
                            "DxgiFactory#1.Release", "DxgiDevice#1.Release", "D3DDevice#1.Release"));
}

TEST_F(RebuildsTest, LeavingForAnotherBackEndReleasesTheChain)
{
    CreateQuietly();
    Rebuild(ChooseGDI);
    ExpectOnlyDevicesLeft(composition, 1);
}

TEST_F(RebuildsTest, ChoosingAnotherBackEndReleasesNothingBeforeTheNextInput)
{
    CreateQuietly();
    Choose(ChooseGDI);
    PumpMessages();
    EXPECT_THAT(composition.Take(), IsEmpty());
    EXPECT_EQ(composition.Living().count("SwapChain"), 1U);
}

TEST_F(RebuildsTest, UnboundBackEndDrawsNothing)
{
    setUps = 0;
    composition.Show(false);
    CreateWithGDI();
    ExpectOnlyDevicesLeft(composition, 1);
    setUps = 1; // of the instance that chose GDI
    composition.Take();
    Choose(ChooseDirectComposition);
    PumpMessages();
    Paint();
    EXPECT_THAT(composition.Take(), IsEmpty());
}

TEST_F(RebuildsTest, ReturningMakesAChainForTheNewWindow)
{
    CreateQuietly();
    Rebuild(ChooseGDI);
    Rebuild(ChooseDirectComposition);
    setUps = 2;
    FrameWith({Sample(100, 100), Sample(200, 100)});
    EXPECT_EQ(PixelAt(150, 100), 0xFF202020U);
}

TEST_F(RebuildsTest, TwentyLeaveWhatIsLeftOnPurposeAndNoMore)
{
    constexpr int Pairs = 10;
    CreateQuietly();
    for (int i = 0; i < Pairs; ++i) {
        Rebuild(ChooseGDI);
        ExpectOnlyDevicesLeft(composition, setUps);
        Rebuild(ChooseDirectComposition);
        ++setUps;
        FrameWith({Sample(100, 100), Sample(200, 100)});
    }
    EXPECT_EQ(setUps, Pairs + 1);
    EXPECT_EQ(WindowsOfClass(L"Lumora Window Class").size(), 2U * Pairs + 1);
    EXPECT_EQ(PixelAt(150, 100), 0xFF202020U);
}

class NoEngineTest : public OverlayTest {
protected:
    NoEngineTest()
    {
        ModuleWithDevices();
        library.SetDebugLevel(NormalLevel);
    }
    ~NoEngineTest() override { library.SetDebugLevel(0); }

    static HRESULT WINAPI Refuse(void*, const GUID&, void** out)
    {
        *out = nullptr;
        return E_NOTIMPL;
    }

    // Some systems end here, others earlier.
    ImportPatch device{library.Module(), "dcomp.dll", "DCompositionCreateDevice", AsAddress(Refuse)};
};

TEST_F(NoEngineTest, OverlayIsThereAndTheLogSaysSo)
{
    const HWND window = library.Create();
    EXPECT_NE(window, nullptr);
    EXPECT_EQ(library.GetWindowHandle(), window);
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_THAT(debugger.Texts(), testing::Contains("InitTransparentWindowCore_ is failed."));
    EXPECT_THAT(debugger.Texts(), testing::Contains("Exception is thrown!\n"));
    EXPECT_THAT(debugger.Texts(),
                testing::Not(testing::Contains("InitTransparentWindowCore_ is successful.")));
}

TEST_F(NoEngineTest, FeedingTickingResizingAndDestroyingAreHarmless)
{
    library.Create();
    Input({Sample(100, 100), Sample(150, 120)});
    Paint();
    shell.Move({100, 100, 500, 400});
    Input({Sample(160, 130)});
    Paint();
    clock.Advance(1000);
    Tick();
    Paint();
    EXPECT_FALSE(IsInvalid());
    DestroyAndForget();
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
}

TEST_F(NoEngineTest, AnotherBackEndStillWorks)
{
    library.Create();
    Choose(ChooseGDI);
    Input({Sample(1, 1)});
    EXPECT_NE(library.GetWindowHandle(), nullptr);
}

} // namespace

} // namespace zq::LM::test
