// The tray helper: what it tells the shell, and what it gives back.
#include "support/hook/hooks.h"
#include "support/library/library.h"
#include "ui/tasktray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>

namespace zq::LM::test {

namespace {

using sc::WinGui::Tasktray;
using Lines = std::vector<std::string>;

constexpr UINT Message = 32814;
constexpr UINT IconNumber = 5;
constexpr UINT MissingIcon = 6;

const std::string LoadIconFive = "LoadImageW(*, #5, 1, 0, 0, 0)";
const std::string Add = "Shell_NotifyIconW(0, *)";
const std::string Delete = "Shell_NotifyIconW(2, *)";

} // namespace

class TasktrayTest : public ::testing::Test {
protected:
    TasktrayTest()
    {
        calls.Record<"LoadImageW">(LoadImageW);
        calls.Record<"DestroyIcon">(DestroyIcon);
        calls.Answer<"Shell_NotifyIconW">(Shell_NotifyIconW, [this](DWORD, NOTIFYICONDATAW* offered) {
            data = *offered;
            return shellAnswer;
        });
        calls.Name(window, "window");
    }
    ~TasktrayTest() override { FreeLibrary(resources); }

    void SetUpTray() { tray->SetUp(window, resources, Message, IconNumber); }

    // The tip that the shell gets for a text of so many characters.
    std::size_t ShownTip(std::size_t length)
    {
        tray->SetTip(std::wstring(length, L't'));
        EXPECT_EQ(tray->Show(), 0);
        EXPECT_EQ(std::wstring_view(data.szTip), std::wstring(std::wcslen(data.szTip), L't'));
        return std::wcslen(data.szTip);
    }

    HWND window = GetDesktopWindow();
    HMODULE resources = LoadLibraryExW(LibraryPath(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE);
    BOOL shellAnswer = TRUE;
    NOTIFYICONDATAW data{};
    Hooks calls{GetModuleHandleW(nullptr)};
    std::optional<Tasktray> tray{std::in_place};
};

TEST_F(TasktrayTest, ShowsARecordOfWhichEveryFieldIsSet)
{
    SetUpTray();
    tray->SetTip(L"A tip");
    EXPECT_EQ(tray->Show(), 0);
    EXPECT_EQ(calls.Take(), (Lines{LoadIconFive, Add}));
    EXPECT_EQ(data.cbSize, 976U);
    EXPECT_EQ(data.hWnd, window);
    EXPECT_EQ(data.uID, Message);
    EXPECT_EQ(data.uFlags, UINT{NIF_MESSAGE | NIF_ICON | NIF_TIP});
    EXPECT_EQ(data.uCallbackMessage, Message);
    EXPECT_NE(data.hIcon, nullptr);
    EXPECT_STREQ(data.szTip, L"A tip");
}

TEST_F(TasktrayTest, HasATipFromTheStart)
{
    SetUpTray();
    tray->Show();
    EXPECT_STREQ(data.szTip, L"sc::WinGui::Tasktray");
}

TEST_F(TasktrayTest, ATipIsShownWholeUpTo99CharactersAndElseCutTo49)
{
    SetUpTray();
    for (const auto& [length, shown] : {std::pair(0U, 0U), std::pair(99U, 99U), std::pair(100U, 49U),
                                        std::pair(127U, 49U), std::pair(128U, 49U), std::pair(5000U, 49U)}) {
        EXPECT_EQ(ShownTip(length), shown) << length;
    }
}

TEST_F(TasktrayTest, AShorterTipLeavesNothingOfTheLongerOne)
{
    SetUpTray();
    ShownTip(90);
    EXPECT_EQ(ShownTip(3), 3U);
    EXPECT_EQ(data.szTip[4], L'\0');
}

TEST_F(TasktrayTest, ShowingFailsBeforeItIsSetUp)
{
    EXPECT_EQ(tray->Show(), -1);
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(TasktrayTest, ShowingFailsWithoutAWindowAModuleOrAMessage)
{
    tray->SetUp(nullptr, resources, Message, IconNumber);
    EXPECT_EQ(tray->Show(), -1);
    tray->SetUp(window, nullptr, Message, IconNumber);
    EXPECT_EQ(tray->Show(), -1);
    tray->SetUp(window, resources, 0, IconNumber);
    EXPECT_EQ(tray->Show(), -1);
    tray.reset();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(TasktrayTest, AtItsEndTheIconIsTakenAwayAndThenDestroyed)
{
    SetUpTray();
    tray->Show();
    calls.Take();
    data = {};
    tray.reset();
    EXPECT_EQ(calls.Take(), (Lines{Delete, "DestroyIcon(icon)"}));
    EXPECT_EQ(data.cbSize, 976U);
    EXPECT_EQ(data.hWnd, window);
    EXPECT_EQ(data.uID, Message);
}

TEST_F(TasktrayTest, AnIconThatTheShellRefusesIsOnlyDestroyed)
{
    shellAnswer = FALSE;
    SetUpTray();
    EXPECT_EQ(tray->Show(), -1);
    tray.reset();
    EXPECT_EQ(calls.Take(), (Lines{LoadIconFive, Add, "DestroyIcon(icon)"}));
}

TEST_F(TasktrayTest, WithoutShowingThereIsNothingToGiveBack)
{
    SetUpTray();
    tray.reset();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(TasktrayTest, AMissingPictureLeavesAnIconWithoutOne)
{
    tray->SetUp(window, resources, Message, MissingIcon);
    EXPECT_EQ(tray->Show(), 0);
    EXPECT_EQ(data.hIcon, nullptr);
    tray.reset();
    EXPECT_EQ(calls.Take(), (Lines{"LoadImageW(*, #6, 1, 0, 0, 0)", Add, Delete}));
}

TEST_F(TasktrayTest, ShownAgainItTakesTheFirstIconAway)
{
    SetUpTray();
    tray->Show();
    calls.Take();
    EXPECT_EQ(tray->Show(), 0);
    EXPECT_EQ(calls.Take(), (Lines{Delete, "DestroyIcon(icon)", LoadIconFive, Add}));
}

class TasktrayMenuTest : public TasktrayTest {
protected:
    TasktrayMenuTest()
    {
        calls.Answer<"GetCursorPos">(GetCursorPos, [this](POINT* position) {
            if (cursorIsKnown) {
                *position = {300, -20};
            }
            return cursorIsKnown;
        });
        calls.Answer<"SetForegroundWindow">(SetForegroundWindow, [](HWND) { return FALSE; });
        calls.Answer<"TrackPopupMenu">(TrackPopupMenu,
                                       [](HMENU, UINT, int, int, int, HWND, const RECT*) { return FALSE; });
        SetUpTray();
    }
    ~TasktrayMenuTest() override { DestroyMenu(menu); }

    BOOL cursorIsKnown = TRUE;
    HMENU menu = CreatePopupMenu();
};

TEST_F(TasktrayMenuTest, OpensAboveTheCursorWithItsWindowInFront)
{
    tray->PopUp(menu);
    EXPECT_EQ(calls.Take(), (Lines{"GetCursorPos(*)", "SetForegroundWindow(window)",
                                   "TrackPopupMenu(*, 32, 300, -20, 0, window, null)"}));
}

TEST_F(TasktrayMenuTest, OpensInTheCornerWhenTheCursorIsUnknown)
{
    cursorIsKnown = FALSE;
    tray->PopUp(menu);
    EXPECT_EQ(calls.Of("TrackPopupMenu"), Lines{"TrackPopupMenu(*, 32, 0, 0, 0, window, null)"});
}

} // namespace zq::LM::test
