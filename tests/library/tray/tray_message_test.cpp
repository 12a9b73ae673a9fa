// What opens the menu: the mouse on the icon and the hotkey.
#include "library/tray/tray_test.h"

namespace zq::LM::test {

namespace {

const Lines LinesOfMouse = {"WM_USER_DEF_TRAY_MESSAGE ... ", "done.\n"};
const Lines LinesOfHotkey = {"WM_HOTKEY ... ", "WM_USER_DEF_TRAY_MESSAGE ... ", "done.\n", "done.\n"};
const Lines PopUp = {"GetSubMenu(menu, 0)", "GetCursorPos(*)", "SetForegroundWindow(window 1)",
                     "TrackPopupMenu(popup 0, 32, 300, 200, 0, window 1, null)"};

} // namespace

class TrayMessageTest : public TrayTest {
protected:
    static Lines WithPopUp(Lines lines, const Lines& after)
    {
        lines.insert(lines.end(), PopUp.begin(), PopUp.end());
        lines.insert(lines.end(), after.begin(), after.end());
        return lines;
    }

    // The window's events as they are noted, with the pop-up among the lines.
    Lines TakeWithLog(UINT message, LPARAM event)
    {
        calls.RecordLog();
        SendMessageW(window, message, TrayMessage, event);
        return calls.Take();
    }
};

TEST_F(TrayMessageTest, TheLeftAndTheRightButtonOpenTheMenuAtTheCursor)
{
    CreateWithTray(Normal);
    for (const UINT button : {UINT{WM_LBUTTONDOWN}, UINT{WM_RBUTTONDOWN}}) {
        debugger.Clear();
        EXPECT_EQ(SendMouse(button), 0) << button;
        EXPECT_EQ(calls.Take(), PopUp) << button;
        EXPECT_EQ(debugger.Texts(), LinesOfMouse) << button;
    }
}

TEST_F(TrayMessageTest, TheMenuIsOpenBetweenTheTwoLines)
{
    CreateWithTray(Normal);
    whileMenuIsOpen = [this] { calls.Log().AddLine("open"); };
    EXPECT_EQ(TakeWithLog(TrayMessage, WM_LBUTTONDOWN),
              WithPopUp({"log: WM_USER_DEF_TRAY_MESSAGE ... "}, {"open", "log: done.\n"}));
}

TEST_F(TrayMessageTest, TheHotkeysMenuIsOpenBetweenItsLines)
{
    CreateWithTray(Normal);
    whileMenuIsOpen = [this] { calls.Log().AddLine("open"); };
    EXPECT_EQ(TakeWithLog(WM_HOTKEY, MAKELPARAM(7, 0x57)),
              WithPopUp({"log: WM_HOTKEY ... ", "log: WM_USER_DEF_TRAY_MESSAGE ... "},
                        {"open", "log: done.\n", "log: done.\n"}));
}

TEST_F(TrayMessageTest, ADoubleClickDoesNothing)
{
    CreateWithTray(Normal);
    calls.Record<"DefWindowProcW">(DefWindowProcW);
    EXPECT_EQ(SendMouse(WM_LBUTTONDBLCLK), 0);
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(debugger.Texts(), LinesOfMouse);
}

TEST_F(TrayMessageTest, TheWholeOfADoubleClickOpensTheMenuOnce)
{
    CreateWithTray();
    for (const UINT event :
         {UINT{WM_LBUTTONDOWN}, UINT{WM_LBUTTONUP}, UINT{WM_LBUTTONDBLCLK}, UINT{WM_LBUTTONUP}}) {
        SendMouse(event);
    }
    EXPECT_EQ(calls.Count("TrackPopupMenu"), 1U);
}

TEST_F(TrayMessageTest, EveryOtherEventHasTheSystemsAnswer)
{
    CreateWithTray(Normal);
    constexpr LRESULT Answer = 77;
    calls.Answer<"DefWindowProcW">(DefWindowProcW, [](HWND, UINT, WPARAM, LPARAM) { return Answer; });
    for (const UINT event :
         {UINT{WM_MOUSEMOVE}, UINT{WM_LBUTTONUP}, UINT{WM_RBUTTONUP}, UINT{WM_RBUTTONDBLCLK},
          UINT{WM_MBUTTONDOWN}, UINT{WM_CONTEXTMENU}, UINT{WM_NULL}}) {
        debugger.Clear();
        EXPECT_EQ(SendMouse(event), Answer) << event;
        EXPECT_EQ(debugger.Texts(), LinesOfMouse) << event;
        EXPECT_EQ(calls.Take(), Lines{"DefWindowProcW(window 1, 32814, 32814, " + Show(event) + ")"});
    }
}

TEST_F(TrayMessageTest, AnyHotkeyOpensTheMenu)
{
    CreateWithTray(Normal);
    for (const WPARAM id : {WPARAM{49443}, WPARAM{0}}) {
        debugger.Clear();
        EXPECT_EQ(SendMessageW(window, WM_HOTKEY, id, MAKELPARAM(7, 0x57)), 0);
        EXPECT_EQ(calls.Take(), PopUp);
        EXPECT_EQ(debugger.Texts(), LinesOfHotkey);
    }
}

TEST_F(TrayMessageTest, BelowTheirLevelNoneIsNoted)
{
    CreateWithTray(1);
    SendMouse(WM_LBUTTONDOWN);
    SendMouse(WM_LBUTTONUP);
    SendMessageW(window, WM_HOTKEY, 1, 0);
    EXPECT_EQ(debugger.Texts(), Lines{});
}

TEST_F(TrayMessageTest, WithoutTheUserInterfaceOnlyTheLinesAreWritten)
{
    window = CreateWithGDI();
    library.SetDebugLevel(Normal);
    debugger.Clear();
    calls.Take();
    EXPECT_EQ(SendMouse(WM_LBUTTONDOWN), 0);
    EXPECT_EQ(SendMessageW(window, WM_HOTKEY, 1, 0), 0);
    EXPECT_EQ(calls.Take(), Lines{});
    Lines expected = LinesOfMouse;
    expected.insert(expected.end(), LinesOfHotkey.begin(), LinesOfHotkey.end());
    EXPECT_EQ(debugger.Texts(), expected);
}

TEST_F(TrayMessageTest, AWindowLeftByARebuildOpensNothing)
{
    CreateWithTray(Normal);
    HWND left = window;
    Command(ChooseDirect2D);
    InputStroke();
    debugger.Clear();
    calls.Take();
    SendMessageW(left, TrayMessage, TrayMessage, WM_LBUTTONDOWN);
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(debugger.Texts(), Lines{});
}

// A menu lets the host's code run, which may end the instance.
TEST_F(TrayMessageTest, AnInstanceThatEndsWhileTheMenuIsOpenIsHarmless)
{
    CreateWithTray(Normal);
    whileMenuIsOpen = [this] { library.Destroy(); };
    EXPECT_EQ(SendMouse(WM_LBUTTONDOWN), 0);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(debugger.Texts().back(), "done.\n");
    EXPECT_EQ(calls.Take().back(), "GlobalDeleteAtom(49443)");
}

TEST_F(TrayMessageTest, ARebuildWhileTheMenuIsOpenIsHarmless)
{
    CreateWithTray(Normal);
    Command(ChooseDirect2D);
    whileMenuIsOpen = [this] { InputStroke(); };
    EXPECT_EQ(SendMouse(WM_LBUTTONDOWN), 0);
    whileMenuIsOpen = nullptr;
    calls.Take();
    window = library.GetWindowHandle();
    EXPECT_EQ(SendMouse(WM_LBUTTONDOWN), 0);
    EXPECT_EQ(calls.Count("TrackPopupMenu"), 1U);
}

} // namespace zq::LM::test
