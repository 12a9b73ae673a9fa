// An instance whose window could not be made: null is the only sign of it, and everything else is harmless.
#include "support/hook/import_hook.h"
#include "support/library/object_counts.h"
#include "support/library/overlay_test.h"

#include <shellapi.h>

#include <vector>

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

// What hides the desktop or takes its mouse is no overlay. Nobody is told to quit: no instance has ended.
class NoSheet : public NoWindow {
protected:
    void ExpectNoSheet()
    {
        invalidations.Forget();
        EXPECT_EQ(library.Create(), nullptr);
        EXPECT_THAT(test::OverlayWindows(), ::testing::IsEmpty());
        EXPECT_FALSE(test::PumpMessages());
        ExpectHarmlessInstance();
    }

    Hook<"SetWindowLongW", decltype(SetWindowLongW)> styles{library.Module()};
    Hook<"SetLayeredWindowAttributes", decltype(SetLayeredWindowAttributes)> keys{library.Module()};
    Hook<"KillTimer", decltype(KillTimer)> timers{library.Module()};
};

TEST_F(NoSheet, AWindowThatTheMouseWouldMeetIsNotLeft)
{
    styles.Fail(0);
    ExpectNoSheet();
    EXPECT_EQ(timers.Count(), 1U);
    styles.PassOn();
    ExpectWorkingInstance();
}

TEST_F(NoSheet, AWindowWithoutItsKeyIsNotLeft)
{
    Select(test::ChooseGDI);
    keys.Fail(FALSE);
    ExpectNoSheet();
    keys.PassOn();
    ExpectWorkingInstance();
}

TEST_F(NoSheet, AWindowWithoutItsKeyIsNotLeftByARebuild)
{
    CreateWithGDI();
    Choose(test::ChooseDirectComposition);
    Choose(test::ChooseGDI);
    keys.Fail(FALSE);
    InputNothing();
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    EXPECT_EQ(test::OverlayWindows().size(), 1U); // the one before
    EXPECT_FALSE(test::PumpMessages());
    keys.PassOn();
    ExpectWorkingInstance();
}

TEST_F(NoSheet, ItsIconGoesWithIt)
{
    std::vector<DWORD> shellCalls;
    Hook<"Shell_NotifyIconW", decltype(Shell_NotifyIconW)> icons(library.Module(), [&](DWORD call, auto) {
        shellCalls.push_back(call);
        return TRUE;
    });
    library.SetDebugLevel(1);
    styles.Fail(0);
    EXPECT_EQ(library.Create(), nullptr);
    EXPECT_THAT(shellCalls, ::testing::ElementsAre(DWORD{NIM_ADD}, DWORD{NIM_DELETE}));
}

// The answers alone say nothing about the window: a hook of the host's may swallow them.
TEST_F(NoSheet, AnAnswerThatOnlyLooksLikeAFailureChangesNothing)
{
    Select(test::ChooseGDI);
    styles.Answer([this](HWND window, int index, LONG value) {
        styles.Real(window, index, value);
        return 0;
    });
    keys.Answer([this](HWND window, COLORREF key, BYTE opacity, DWORD flags) {
        keys.Real(window, key, opacity, flags);
        return FALSE;
    });
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
