// The back-end in the life of the overlay: its end, changes from and to another back-end, and a system
// without a composition engine.
#include "support/library/composition_test.h"
#include "support/library/leftovers.h"
#include "support/library/object_counts.h"

namespace zq::LM::test {

namespace {

using testing::IsEmpty;

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
    EXPECT_EQ(OverlayWindows().size(), 2U * Pairs + 1);
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

    // Some systems end here, others earlier.
    Hook<"DCompositionCreateDevice", decltype(DCompositionCreateDevice)> device{
        library.Module(), [](IDXGIDevice*, const GUID&, void** out) {
            *out = nullptr;
            return E_NOTIMPL;
        }};
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
    PaintWhole();
    shell.Move({100, 100, 500, 400});
    Input({Sample(160, 130)});
    PaintWhole();
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
