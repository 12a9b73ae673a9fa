// An instance whose window could not be made: null is the only sign of it, and everything else is harmless.
#include "support/hook/import_hook.h"
#include "support/library/overlay_test.h"

namespace zq::LM {
namespace {

using test::Hook;
using test::OverlayTest;
using test::Sample;

class NoWindow : public OverlayTest {
protected:
    // Every export once, on an instance without a window.
    void ExpectHarmlessInstance()
    {
        library.SetDebugLevel(2);
        debugger.Clear();
        EXPECT_EQ(library.GetWindowHandle(), nullptr);
        EXPECT_EQ(Params().inkDecayTime, 100U); // so there is a Core, with its defaults
        LM_Params params = Params();
        params.brushSize = 44;
        SetParams(params);
        EXPECT_EQ(Params().brushSize, 44U);
        Input({Sample(100, 100), Sample(120, 110)});
        library.InputPenDataArray(nullptr, 0);
        library.SetData_from_App(&params, sizeof(params));
        EXPECT_EQ(invalidations.Count(), 0U); // a null window would be the whole desktop
        EXPECT_THAT(debugger.Texts(), ::testing::Not(::testing::Contains("InvalidateRect is called.\n")));
        library.SetDebugLevel(0);
    }

    void ExpectWorkingInstance()
    {
        const HWND window = library.Create();
        ASSERT_TRUE(IsWindow(window));
        Paint();
        Input({Sample(100, 100)});
        EXPECT_TRUE(IsInvalid());
    }

    Hook<"RegisterClassExW", decltype(RegisterClassExW)> classes{library.Module()};
    Hook<"CreateWindowExW", decltype(CreateWindowExW)> windows{library.Module()};
    Hook<"InvalidateRect", decltype(InvalidateRect)> invalidations{library.Module()};
    Hook<"DestroyWindow", decltype(DestroyWindow)> destroyed{library.Module()};
};

TEST_F(NoWindow, AfterFailedRegistrationThereIsNoWindowAndALaterCreateWorks)
{
    classes.Fail(ATOM{0});
    EXPECT_EQ(library.Create(), nullptr);
    EXPECT_EQ(classes.Count(), 1U);
    EXPECT_EQ(windows.Count(), 0U);
    EXPECT_EQ(timer.Started().size(), 0U);
    ExpectHarmlessInstance();
    classes.PassOn();
    ExpectWorkingInstance();
    EXPECT_EQ(destroyed.Count(), 0U); // the instance before had no window
}

TEST_F(NoWindow, AfterFailedCreationNothingIsSetUpAndALaterCreateWorks)
{
    Hook<"SetLayeredWindowAttributes", decltype(SetLayeredWindowAttributes)> layered(library.Module());
    library.SetDebugLevel(1); // would register the hotkey
    Hook<"RegisterHotKey", decltype(RegisterHotKey)> hotkeys(library.Module());
    windows.Fail(HWND{nullptr});
    EXPECT_EQ(library.Create(), nullptr);
    EXPECT_EQ(layered.Count(), 0U);
    EXPECT_EQ(hotkeys.Count(), 0U);
    EXPECT_EQ(timer.Started().size(), 0U);
    ExpectHarmlessInstance();
    windows.PassOn();
    ExpectWorkingInstance();
}

TEST_F(NoWindow, DestroyingIsHarmlessAndPostsNoQuitMessage)
{
    classes.Fail(ATOM{0});
    library.Create();
    library.Destroy();
    EXPECT_EQ(destroyed.Count(), 0U);
    EXPECT_FALSE(test::PumpMessages());
}

TEST_F(NoWindow, AFailingReplacementStillEndsTheFirstWindow)
{
    const HWND first = library.Create();
    classes.Fail(ATOM{0});
    EXPECT_EQ(library.Create(), nullptr);
    EXPECT_FALSE(IsWindow(first));
    ExpectHarmlessInstance();
    classes.PassOn();
    test::PumpMessages();
    ExpectWorkingInstance();
}

TEST_F(NoWindow, ALiveStrokeOnAnInstanceWithoutAWindowEndsWithIt)
{
    classes.Fail(ATOM{0});
    library.Create();
    for (int i = 1; i <= 100; ++i) {
        Input({Sample(i, 100)});
        clock.Advance(1);
    }
    classes.PassOn();
    ExpectWorkingInstance();
}

} // namespace
} // namespace zq::LM
