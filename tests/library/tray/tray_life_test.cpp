// When an overlay has icon, menu and hotkey, and when it gives them back.
#include "library/tray/tray_test.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

const Lines Made = {"Shell_NotifyIconW(0, *)", "LoadMenuW(module, \"IDR_MENU_LUMORA_CORE_TASKTRAY\")",
                    "GlobalAddAtomW(\"Lumora Hotkey\")", "RegisterHotKey(window 1, 49443, 7, 87)"};
const Lines Returned = {"Shell_NotifyIconW(2, *)", "DestroyIcon(*)", "DestroyMenu(menu)"};

} // namespace

class TrayLifeTest : public TrayTest {
protected:
    // What makes or ends icon, menu and hotkey; not the marks.
    Lines TakeLife()
    {
        Lines lines = calls.Take();
        std::erase_if(lines, [](const std::string& line) { return line.starts_with("CheckMenuRadioItem"); });
        return lines;
    }
};

TEST_F(TrayLifeTest, WithoutTheUserInterfaceThereIsNeitherIconNorMenuNorHotkey)
{
    library.Create();
    DestroyAndForget();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(TrayLifeTest, LevelZeroTakesTheUserInterfaceFromTheNextWindow)
{
    library.SetDebugLevel(255);
    library.SetDebugLevel(0);
    library.Create();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(TrayLifeTest, WithTheUserInterfaceThereAreAllThree)
{
    library.SetDebugLevel(1);
    window = library.Create();
    EXPECT_EQ(TakeLife(), Made);
    EXPECT_EQ(added.hWnd, window);
    EXPECT_EQ(added.uID, TrayMessage);
    EXPECT_EQ(added.uCallbackMessage, TrayMessage);
    EXPECT_NE(added.hIcon, nullptr);
    EXPECT_STREQ(added.szTip, L"Lumora Core");
}

TEST_F(TrayLifeTest, TheIconIsNumberFiveOfTheLibrary)
{
    calls.Record<"LoadImageW">(LoadImageW);
    library.SetDebugLevel(1);
    library.Create();
    EXPECT_EQ(calls.Of("LoadImageW"),
              (Lines{"LoadImageW(null, #32512, 2, 0, 0, 32832)", "LoadImageW(module, #5, 1, 0, 0, 0)"}));
}

TEST_F(TrayLifeTest, ALaterLevelChangesNothingInAnExistingWindow)
{
    library.Create();
    library.SetDebugLevel(255);
    EXPECT_EQ(calls.Take(), Lines{});
    DestroyAndForget();
    EXPECT_EQ(calls.Take(), Lines{});

    window = library.Create();
    EXPECT_EQ(TakeLife().size(), Made.size());
    library.SetDebugLevel(0);
    EXPECT_EQ(calls.Take(), Lines{});
    SendMouse(WM_LBUTTONDOWN);
    EXPECT_EQ(calls.Count("TrackPopupMenu"), 1U);
}

TEST_F(TrayLifeTest, DestroyingTheInstanceGivesAllBack)
{
    CreateWithTray();
    library.Destroy();
    Lines expected = Returned;
    expected.emplace_back("GlobalDeleteAtom(49443)"); // the window took the hotkey along
    EXPECT_EQ(calls.Take(), expected);
}

TEST_F(TrayLifeTest, ARebuildGivesAllBackBeforeItMakesThemAnew)
{
    CreateWithTray();
    HWND old = window;
    calls.Name(old, "old window");
    Command(ChooseDirect2D);
    calls.Take();
    InputStroke();
    Lines expected = Returned;
    expected.insert(expected.end(), {"UnregisterHotKey(old window, 49443)", "GlobalDeleteAtom(49443)"});
    expected.insert(expected.end(), Made.begin(), Made.end());
    Lines lines = TakeLife();
    std::replace(lines.begin(), lines.end(), std::string("RegisterHotKey(window 2, 49443, 7, 87)"),
                 Made.back());
    EXPECT_EQ(lines, expected);
    EXPECT_EQ(added.hWnd, library.GetWindowHandle());
}

TEST_F(TrayLifeTest, AReplacedInstanceGivesAllBackBeforeItMakesThemAnew)
{
    CreateWithTray();
    HWND old = window;
    library.Create();
    const Lines lines = TakeLife();
    ASSERT_EQ(lines.size(), Returned.size() + 1 + Made.size());
    EXPECT_TRUE(std::equal(Returned.begin(), Returned.end(), lines.begin()));
    EXPECT_NE(added.hWnd, old);
}

TEST_F(TrayLifeTest, ARestartedShellGetsTheIconAgain)
{
    CreateWithTray();
    EXPECT_EQ(SendMessageW(window, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0), 0);
    EXPECT_EQ(calls.Take(), (Lines{"Shell_NotifyIconW(2, *)", "DestroyIcon(*)", "Shell_NotifyIconW(0, *)"}));
    EXPECT_EQ(added.hWnd, window);
    EXPECT_STREQ(added.szTip, L"Lumora Core");
}

TEST_F(TrayLifeTest, AShellThatComesLateGetsTheIcon)
{
    shellAnswer = FALSE;
    CreateWithTray();
    shellAnswer = TRUE;
    SendMessageW(window, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
    EXPECT_EQ(calls.Take(), (Lines{"DestroyIcon(*)", "Shell_NotifyIconW(0, *)"}));
    library.Destroy();
    EXPECT_EQ(calls.Of("Shell_NotifyIconW"), Lines{"Shell_NotifyIconW(2, *)"});
}

TEST_F(TrayLifeTest, ARestartedShellGetsNothingOfAnOverlayWithoutUserInterface)
{
    HWND plain = library.Create();
    SendMessageW(plain, RegisterWindowMessageW(L"TaskbarCreated"), 0, 0);
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(TrayLifeTest, AnIconThatTheShellRefusesIsLeftOutInSilence)
{
    shellAnswer = FALSE;
    library.SetDebugLevel(1);
    debugger.Clear();
    EXPECT_NE(library.Create(), nullptr);
    EXPECT_EQ(debugger.Texts(), (Lines{"zq::CallFunc::Create\n", VersionLine()}));
    EXPECT_EQ(TakeLife(), Made); // menu and hotkey all the same
    SendMessageW(library.GetWindowHandle(), WM_HOTKEY, 1, 0);
    EXPECT_EQ(calls.Count("TrackPopupMenu"), 1U);
    calls.Take();
    DestroyAndForget();
    EXPECT_EQ(calls.Take(), (Lines{"DestroyIcon(*)", "DestroyMenu(menu)", "GlobalDeleteAtom(49443)"}));
}

TEST_F(TrayLifeTest, AMissingMenuIsLeftOutInSilence)
{
    RemoveMenu();
    CreateWithTray(2);
    EXPECT_EQ(SendMouse(WM_LBUTTONDOWN), 0);
    SendMessageW(window, WM_HOTKEY, 1, 0);
    Command(7);
    EXPECT_EQ(calls.Take(), Lines{}); // neither pop-up nor marks
    EXPECT_EQ(debugger.Texts(), (Lines{"WM_USER_DEF_TRAY_MESSAGE ... ", "done.\n", "WM_HOTKEY ... ",
                                       "WM_USER_DEF_TRAY_MESSAGE ... ", "done.\n", "done.\n",
                                       "WM_COMMAND ... ", "InvalidateRect is called.\n", "done\n"}));
    library.Destroy();
    EXPECT_EQ(calls.Take(), (Lines{"Shell_NotifyIconW(2, *)", "DestroyIcon(*)", "GlobalDeleteAtom(49443)"}));
}

TEST_F(TrayLifeTest, AClosedWindowLeavesIconAndMenuToTheInstance)
{
    CreateWithTray();
    SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(calls.Take(), Lines{});
    library.Destroy();
    EXPECT_EQ(TakeLife().size(), Returned.size() + 1);
}

// The marks of a new window: the level and the back-end in force.
TEST_F(TrayLifeTest, TheMarksAreSetWithTheWindow)
{
    CreateWithTray(3);
    EXPECT_EQ(Marked(), (std::vector<UINT>{40013, 40022}));
}

TEST_F(TrayLifeTest, TheMarksFollowEveryNamedLevel)
{
    const std::pair<std::uint32_t, UINT> levels[] = {{1, 40011}, {2, 40012}, {3, 40013}, {255, 40014}};
    for (const auto& [level, command] : levels) {
        library.SetDebugLevel(level);
        library.Create();
        EXPECT_EQ(Marked(), (std::vector<UINT>{command, 40020})) << level;
    }
}

TEST_F(TrayLifeTest, ALevelWithoutANameIsMarkedAsNone)
{
    for (const std::uint32_t level : {4U, 7U, 254U, 256U, 0xFFFFFFFFU}) {
        library.SetDebugLevel(level);
        library.Create();
        EXPECT_EQ(Marked(), (std::vector<UINT>{40010, 40020})) << level;
    }
}

TEST_F(TrayLifeTest, TheMarksAreSetOnTheWholeMenu)
{
    library.SetDebugLevel(1);
    library.Create();
    EXPECT_EQ(calls.Of("CheckMenuRadioItem"), (Lines{"CheckMenuRadioItem(menu, 40010, 40014, 40011, 0)",
                                                     "CheckMenuRadioItem(menu, 40020, 40022, 40020, 0)"}));
}

TEST_F(TrayLifeTest, TheMarksAreRoundOnes)
{
    CreateWithTray(1);
    for (const UINT command : {40011U, 40022U}) {
        MENUITEMINFOW info{};
        info.cbSize = sizeof(info);
        info.fMask = MIIM_FTYPE;
        ASSERT_TRUE(GetMenuItemInfoW(menu, command, FALSE, &info));
        EXPECT_EQ(info.fType & MFT_RADIOCHECK, UINT{MFT_RADIOCHECK}) << command;
    }
}

} // namespace zq::LM::test
