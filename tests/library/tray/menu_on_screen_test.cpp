// The menu on the real screen: opened by the mouse on the icon and by the hotkey, and answered by keys.
#include "support/hook/import_hook.h"
#include "support/library/overlay_test.h"

#include <array>
#include <atomic>
#include <functional>
#include <thread>

namespace zq::LM::test {

namespace {

constexpr POINT FirstIcon = {12, 32}; // of the window in which Wine shows the icons of the notification area
constexpr POINT Aside = {600, 300};

void SendKey(WORD key, DWORD flags)
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

void PressKey(WORD key)
{
    SendKey(key, 0);
    SendKey(key, KEYEVENTF_KEYUP);
}

// The modifiers arrive before the hotkey, as from a hand: a menu that is open would be closed by them.
void PressHotkey()
{
    constexpr std::array<WORD, 3> Modifiers = {VK_CONTROL, VK_MENU, VK_SHIFT};
    for (const WORD key : Modifiers) {
        SendKey(key, 0);
    }
    PumpMessages();
    PressKey('W');
    for (const WORD key : Modifiers) {
        SendKey(key, KEYEVENTF_KEYUP);
    }
}

void SendMouse(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

bool IsInMenu(DWORD thread)
{
    GUITHREADINFO info{};
    info.cbSize = sizeof(info);
    return GetGUIThreadInfo(thread, &info) != 0 && (info.flags & GUI_INMENUMODE) != 0;
}

// A menu keeps its thread; what answers it needs one of its own. Closes the menu whatever the answer was.
class MenuAnswer {
public:
    explicit MenuAnswer(std::function<void()> answer) : thread([this, answer] { Run_(answer); }) {}
    ~MenuAnswer()
    {
        isOver = true;
        thread.join();
    }
    MenuAnswer(const MenuAnswer&) = delete;
    MenuAnswer& operator=(const MenuAnswer&) = delete;

private:
    void Run_(const std::function<void()>& answer)
    {
        constexpr DWORD BetweenLooks = 20;
        bool isAnswered = false;
        for (; !isOver; Sleep(BetweenLooks)) {
            if (IsInMenu(owner) && !isAnswered) {
                answer();
                isAnswered = true;
            } else if (IsInMenu(owner)) {
                PressKey(VK_ESCAPE);
            }
        }
    }

    DWORD owner = GetCurrentThreadId();
    std::atomic<bool> isOver = false;
    std::thread thread; // the last, since it uses the others
};

// What a timer of the host runs inside the menu's message loop, and only there.
std::function<void()> g_inMenu;

void CALLBACK RunInMenu(HWND, UINT, UINT_PTR, DWORD)
{
    if (IsInMenu(GetCurrentThreadId())) {
        g_inMenu();
    }
}

HWND DialogOf(HWND owner)
{
    HWND found = nullptr;
    do {
        found = FindWindowExW(nullptr, found, L"#32770", nullptr);
    } while (found != nullptr && GetWindow(found, GW_OWNER) != owner);
    return found;
}

} // namespace

class MenuOnScreenTest : public OverlayTest {
protected:
    void SetUp() override
    {
        if (GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr) {
            GTEST_SKIP() << "where the shell shows an icon is known under Wine only";
        }
        CreateWithGDI(); // its first instance has no icon
        DestroyAndForget();
        library.SetDebugLevel(1);
        library.Create();
        SetForegroundWindow(host.Window());
        SetCursorPos(Aside.x, Aside.y);
        SettleScreen(); // a change of the focus on its way would release the keys that are pressed here
    }

    // True when the menu was opened once; it is closed again and its command, if any, has been served.
    bool OpenMenu(const std::function<void()>& opener, const std::function<void()>& answer)
    {
        constexpr DWORD PollMilliseconds = 10;
        constexpr int MostPolls = 500;
        popUps.Forget();
        popUps.Before([this](HMENU, UINT, int x, int y, int, HWND, const RECT*) { openedAt = {x, y}; });
        const MenuAnswer answering(answer);
        opener();
        for (int i = 0; i < MostPolls && popUps.Count() == 0; ++i) {
            MsgWaitForMultipleObjects(0, nullptr, FALSE, PollMilliseconds, QS_ALLINPUT);
            PumpMessages();
        }
        PumpMessages();
        return popUps.Count() == 1;
    }

    // The button is held until the menu is open, and released away from it.
    void ExpectMenuByClick(DWORD down, DWORD up)
    {
        const auto press = [down] {
            SetCursorPos(FirstIcon.x, FirstIcon.y);
            SendMouse(down);
        };
        const auto leave = [] { SetCursorPos(Aside.x, Aside.y); };
        EXPECT_TRUE(OpenMenu(press, leave));
        SendMouse(up);
        EXPECT_EQ(openedAt.x, FirstIcon.x);
        EXPECT_EQ(openedAt.y, FirstIcon.y);
    }

    POINT openedAt{};
    Backdrop host{{600, 560, 900, 740}, RGB(0, 128, 0)};
    Hook<"TrackPopupMenu", decltype(TrackPopupMenu)> popUps{library.Module()};
};

TEST_F(MenuOnScreenTest, TheHotkeyOpensTheMenu)
{
    EXPECT_TRUE(OpenMenu(PressHotkey, [] {}));
}

TEST_F(MenuOnScreenTest, ALeftClickOnTheIconOpensTheMenu)
{
    ExpectMenuByClick(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP);
}

TEST_F(MenuOnScreenTest, ARightClickOnTheIconOpensTheMenu)
{
    ExpectMenuByClick(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP);
}

// Keys into a menu are lost now and then, so what they would choose is posted.
TEST_F(MenuOnScreenTest, ACommandOfTheOpenMenuTakesEffect)
{
    const HWND window = library.GetWindowHandle();
    EXPECT_TRUE(OpenMenu(PressHotkey, [window] { PostMessageW(window, WM_COMMAND, 40012, 0); }));
    debugger.Clear();
    Tick();
    EXPECT_THAT(debugger.Texts(),
                testing::ElementsAre("zq::CallFunc::GetWindowHandle\n", "WM_TIMER ... ", "done.\n"));
}

// A menu lets the host's code run, which may end the instance.
TEST_F(MenuOnScreenTest, AnInstanceThatEndsUnderItsOpenMenuIsHarmless)
{
    HWND window = library.GetWindowHandle();
    constexpr UINT_PTR Timer = 1;
    g_inMenu = [this] { DestroyAndForget(); };
    const auto open = [this] {
        SetTimer(host.Window(), Timer, USER_TIMER_MINIMUM, RunInMenu);
        PressHotkey();
    };
    const auto awaitTheEnd = [window] {
        constexpr DWORD BetweenLooks = 10;
        constexpr int MostLooks = 500;
        for (int i = 0; i < MostLooks && IsWindow(window); ++i) {
            Sleep(BetweenLooks);
        }
    };
    EXPECT_TRUE(OpenMenu(open, awaitTheEnd));
    KillTimer(host.Window(), Timer);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    library.Create();
    Choose(40012);
    EXPECT_EQ(debugger.Texts().back(), "done\n");
}

TEST_F(MenuOnScreenTest, TheSaveDialogIsTheOverlaysAndWritesNothingWhenItIsLeft)
{
    HWND owner = library.GetWindowHandle();
    std::atomic<bool> wasSeen = false;
    std::thread leaving([&] {
        constexpr DWORD BetweenLooks = 20;
        constexpr int MostLooks = 500;
        HWND dialog = nullptr;
        for (int i = 0; i < MostLooks && dialog == nullptr; ++i, Sleep(BetweenLooks)) {
            dialog = DialogOf(owner);
        }
        wasSeen = dialog != nullptr;
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
    });
    Choose(40002);
    leaving.join();
    EXPECT_TRUE(wasSeen);
    EXPECT_EQ(DialogOf(owner), nullptr);
    EXPECT_EQ(GetFileAttributesA("FPS.csv"), INVALID_FILE_ATTRIBUTES);
}

} // namespace zq::LM::test
