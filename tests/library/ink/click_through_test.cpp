// The overlay among other windows: the mouse passes it by, and it stays above them.
#include "support/library/ink_on_screen.h"

namespace zq::LM::test {

namespace {

class OverlayAmongWindows : public OpaqueInkOnScreen {
protected:
    // A click at a pen position, and a bounded wait until a window of this thread has had it.
    bool Click(int x, int y) const
    {
        const int before = backdrop.Clicks();
        SetCursorPos(Desktop.left + x, Desktop.top + y);
        INPUT inputs[2]{};
        inputs[0].type = inputs[1].type = INPUT_MOUSE;
        inputs[0].mi.dwFlags = MOUSEEVENTF_LEFTDOWN;
        inputs[1].mi.dwFlags = MOUSEEVENTF_LEFTUP;
        SendInput(2, inputs, sizeof(INPUT));
        constexpr int MostWaits = 100;
        constexpr DWORD WaitMilliseconds = 20;
        for (int i = 0; i < MostWaits && backdrop.Clicks() == before; ++i) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, WaitMilliseconds, QS_ALLINPUT);
            PumpMessages();
        }
        return backdrop.Clicks() == before + 1;
    }

    static HWND WindowAt(int x, int y) { return WindowFromPoint({Desktop.left + x, Desktop.top + y}); }
};

TEST_F(OverlayAmongWindows, AClickOnInkReachesTheWindowBelow)
{
    Stroke(100, 200, 100);
    ASSERT_EQ(Look().At(150, 100), Red);
    EXPECT_TRUE(Click(150, 100));
}

TEST_F(OverlayAmongWindows, AClickBesideInkReachesTheWindowBelow)
{
    Stroke(100, 200, 100);
    ASSERT_EQ(Look().At(150, 200), Green);
    EXPECT_TRUE(Click(150, 200));
}

TEST_F(OverlayAmongWindows, InkLiesAboveEveryWindowThatWasThere)
{
    DestroyAndForget();
    const Backdrop other({Desktop.left + 150, Desktop.top + 50, Desktop.left + 250, Desktop.top + 150}, Blue);
    OpaqueInkOnScreen::SetUp();
    Stroke(100, 200, 100);
    const Picture picture = Look();
    EXPECT_EQ(picture.At(120, 100), Red);
    EXPECT_EQ(picture.At(180, 100), Red);
    EXPECT_EQ(picture.At(180, 120), Blue);
    EXPECT_EQ(picture.At(120, 120), Green);
}

// By the order of windows, not by pixels: without a window manager the tests' display shows a focused window
// on top of all.
class OverlayInTheOrderOfWindows : public OverlayAmongWindows {
protected:
    // Not only just above: the system puts hidden windows of its own in between.
    static bool IsAbove(HWND upper, HWND lower)
    {
        for (HWND above = GetWindow(lower, GW_HWNDPREV); above != nullptr;
             above = GetWindow(above, GW_HWNDPREV)) {
            if (above == upper) {
                return true;
            }
        }
        return false;
    }

    bool OverlayIsAbove(HWND window) const { return IsAbove(library.GetWindowHandle(), window); }

    Backdrop other{{Desktop.left + 50, Desktop.top + 50, Desktop.left + 250, Desktop.top + 150}, Blue};
};

TEST_F(OverlayInTheOrderOfWindows, IsAboveAWindowMadeForeground)
{
    SetForegroundWindow(backdrop.Window());
    SetForegroundWindow(other.Window());
    BringWindowToTop(other.Window()); // not everywhere part of becoming the foreground window
    SettleScreen();
    EXPECT_EQ(GetForegroundWindow(), other.Window());
    EXPECT_TRUE(OverlayIsAbove(other.Window()));
    EXPECT_TRUE(OverlayIsAbove(backdrop.Window()));
}

TEST_F(OverlayInTheOrderOfWindows, IsAboveAWindowRaisedToTheTop)
{
    SetWindowPos(backdrop.Window(), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    EXPECT_TRUE(IsAbove(backdrop.Window(), other.Window()));
    EXPECT_TRUE(OverlayIsAbove(backdrop.Window()));
}

TEST_F(OverlayInTheOrderOfWindows, IsAboveAWindowMadeLater)
{
    const Backdrop later({Desktop.left, Desktop.top, Desktop.left + 50, Desktop.top + 50}, Blue);
    EXPECT_TRUE(OverlayIsAbove(later.Window()));
}

TEST_F(OverlayAmongWindows, CreatingTheOverlayLeavesTheForegroundWindowAlone)
{
    SetForegroundWindow(backdrop.Window());
    Stroke(100, 200, 100);
    EXPECT_EQ(GetForegroundWindow(), backdrop.Window());
}

} // namespace

} // namespace zq::LM::test
