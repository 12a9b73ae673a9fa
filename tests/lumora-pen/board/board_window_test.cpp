// The Board's window: its place, its ink on it, and its end.
#include "board_test.h"

#include "support/library/object_counts.h"
#include "support/screen/screen.h"

#include <cstring>
#include <stdexcept>

#include <tpcshrd.h>

namespace lumora_pen::test {
namespace {

using testing::SizeIs;
using zq::LM::test::PumpMessages;

// In the overlay's place: on top of all, and shown.
class TopWindow {
public:
    TopWindow()
        : window(CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW | WS_EX_NOACTIVATE, L"STATIC", L"overlay",
                                 WS_POPUP, 0, 0, 50, 50, nullptr, nullptr, nullptr, nullptr))
    {
        ShowWindow(window, SW_SHOWNOACTIVATE);
    }
    ~TopWindow() { DestroyWindow(window); }
    TopWindow(const TopWindow&) = delete;
    TopWindow& operator=(const TopWindow&) = delete;

    HWND window;
};

class Board : public BoardTest {};

TEST_F(Board, CoversTheVirtualScreen)
{
    EXPECT_EQ(board.State(), BoardState::Hidden);
    EXPECT_EQ(board.Show(nullptr), BoardState::TakesInputAndInk);
    EXPECT_TRUE(board.IsShown());
    EXPECT_TRUE(IsWindowVisible(board.Window()));
    ExpectWindowAt(screen);
}

TEST_F(Board, CoversAScreenThatBeginsLeftOfAndAboveTheFirstMonitor)
{
    screen = {-1280, -200, 1920, 1080};
    board.Show(nullptr);
    ExpectWindowAt(screen);
    EXPECT_TRUE(DrawLine(-1000, -150, -900, -150));
    EXPECT_EQ(At(-950, -150), RedInk);
    ExpectPart({275, 45, 385, 55}); // counted from the window's corner
}

TEST_F(Board, IsAWindowThatNeverTakesTheFocus)
{
    const TopWindow other;
    SetForegroundWindow(other.window);
    SetFocus(other.window);
    board.Show(nullptr);
    const auto style = static_cast<DWORD>(GetWindowLongPtrW(board.Window(), GWL_EXSTYLE));
    const DWORD wanted = WS_EX_LAYERED | WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW;
    EXPECT_EQ(style & wanted, wanted);
    EXPECT_EQ(style & WS_EX_TRANSPARENT, 0U);
    EXPECT_EQ(Send(WM_MOUSEACTIVATE), MA_NOACTIVATE);
    EXPECT_EQ(Send(WM_POINTERACTIVATE), PA_NOACTIVATE);
    SendMouse(WM_LBUTTONDOWN, 10, 10);
    EXPECT_EQ(GetFocus(), other.window);
}

TEST_F(Board, LiesDirectlyBelowTheOverlay)
{
    const TopWindow overlay;
    const TopWindow above;
    board.Show(overlay.window);
    EXPECT_EQ(GetWindow(board.Window(), GW_HWNDPREV), overlay.window);
    board.PlaceBelow(above.window);
    EXPECT_EQ(GetWindow(board.Window(), GW_HWNDPREV), above.window);
}

TEST_F(Board, ShownTwiceFollowsTheOverlayThatIsNamedLast)
{
    const TopWindow overlay;
    const TopWindow above;
    board.Show(overlay.window);
    HWND first = board.Window();
    EXPECT_EQ(board.Show(above.window), BoardState::TakesInputAndInk);
    EXPECT_EQ(board.Window(), first);
    EXPECT_EQ(GetWindow(board.Window(), GW_HWNDPREV), above.window);
}

TEST_F(Board, LiesOnTopWhereThereIsNoOverlay)
{
    const TopWindow other;
    board.Show(nullptr);
    EXPECT_EQ(GetWindow(other.window, GW_HWNDPREV), board.Window());
    BringWindowToTop(other.window);
    board.PlaceBelow(reinterpret_cast<HWND>(0x7FF0)); // one that has gone
    EXPECT_EQ(GetWindow(other.window, GW_HWNDPREV), board.Window());
}

TEST_F(Board, ShowsOnlyWhatHasChanged)
{
    board.Show(nullptr);
    ExpectPart(screen);
    EXPECT_TRUE(DrawLine(100, 50, 200, 50));
    ExpectPart({95, 45, 205, 55});
    EXPECT_EQ(At(150, 50), RedInk);
    EXPECT_EQ(wholes.Count(), 0U);
}

TEST_F(Board, ShowsAllOfItWhereTheSystemTakesNoPart)
{
    parts.Fail(FALSE);
    EXPECT_EQ(board.Show(nullptr), BoardState::TakesInputAndInk);
    EXPECT_TRUE(DrawLine(100, 50, 200, 50));
    EXPECT_EQ(wholes.Count(), 2U);
}

TEST_F(Board, InkThatCouldNotBeShownIsShownWithTheNext)
{
    board.Show(nullptr);
    FailBothUpdates();
    EXPECT_FALSE(DrawLine(100, 50, 200, 50));
    EXPECT_EQ(board.State(), BoardState::TakesInputAndInk);
    parts.PassOn();
    EXPECT_TRUE(DrawLine(300, 150, 400, 150));
    ExpectPart({95, 45, 405, 155});
    EXPECT_TRUE(DrawLine(300, 150, 400, 150));
    ExpectPart({295, 145, 405, 155});
}

TEST_F(Board, WipesItsInk)
{
    board.Show(nullptr);
    DrawLine(100, 50, 200, 50);
    EXPECT_TRUE(board.Wipe());
    ExpectPart({95, 45, 205, 55});
    EXPECT_EQ(InkedPixels(board.Canvas()), 0U);
    const std::size_t before = parts.Count();
    EXPECT_TRUE(board.Wipe());
    EXPECT_EQ(parts.Count(), before);
}

TEST_F(Board, WithoutABitmapTakesInputAndSaysThatItDrawsNothing)
{
    bitmaps.Fail(nullptr);
    Hook<"SetLayeredWindowAttributes", decltype(SetLayeredWindowAttributes)> ground(program);
    BYTE alpha = 0;
    ground.Before([&](HWND, COLORREF, BYTE value, DWORD) { alpha = value; });
    EXPECT_EQ(board.Show(nullptr), BoardState::TakesInput);
    EXPECT_EQ(alpha, 1);
    EXPECT_TRUE(IsWindowVisible(board.Window()));
    EXPECT_FALSE(DrawLine(100, 50, 200, 50));
    EXPECT_FALSE(board.Wipe());
    SendMouse(WM_LBUTTONDOWN, 10, 10);
    EXPECT_THAT(taken, SizeIs(1));
    PumpMessages(); // paints what there is
    board.Hide();
    EXPECT_FALSE(board.IsShown());
}

TEST_F(Board, WhosePictureTheSystemRefusesTakesInput)
{
    FailBothUpdates();
    EXPECT_EQ(board.Show(nullptr), BoardState::TakesInput);
    EXPECT_TRUE(IsWindowVisible(board.Window()));
}

TEST_F(Board, WithoutAWindowStaysHidden)
{
    Hook<"CreateWindowExW", decltype(CreateWindowExW)> windows(program);
    windows.Fail(nullptr, 1, 1);
    EXPECT_EQ(board.Show(nullptr), BoardState::Hidden);
    EXPECT_FALSE(board.IsShown());
    EXPECT_FALSE(DrawLine(100, 50, 200, 50));
    EXPECT_FALSE(board.Wipe());
    board.PlaceBelow(nullptr);
    board.Hide();
    EXPECT_EQ(board.Show(nullptr), BoardState::TakesInputAndInk);
}

TEST_F(Board, IsHiddenAtOnceWithItsInk)
{
    board.Show(nullptr);
    DrawLine(100, 50, 200, 50);
    HWND window = board.Window();
    board.Hide();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(board.Window(), nullptr);
    EXPECT_EQ(board.State(), BoardState::Hidden);
    EXPECT_FALSE(board.Canvas().IsMade());
    board.Hide();
    EXPECT_EQ(board.Show(nullptr), BoardState::TakesInputAndInk);
    EXPECT_EQ(InkedPixels(board.Canvas()), 0U);
}

TEST_F(Board, HiddenInTheMiddleOfAStrokeEndsItAndGivesTheMouseBack)
{
    board.Show(nullptr);
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    SendMouse(WM_MOUSEMOVE, 110, 50);
    board.Hide();
    ASSERT_THAT(taken, SizeIs(3));
    EXPECT_EQ(taken[2].samples.back().pressure, 0);
    EXPECT_EQ(taken[2].samples.back().x, 110);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Board, MayBeHiddenByWhoTakesTheInput)
{
    board.Show(nullptr);
    onTake = [this] { board.Hide(); };
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    EXPECT_FALSE(board.IsShown());
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_EQ(taken[1].samples.back().pressure, 0);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(Board, IsNotShownAgainWhileItEnds)
{
    board.Show(nullptr);
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    onTake = [this] { EXPECT_EQ(board.Show(nullptr), BoardState::Hidden); };
    board.Hide();
    onTake = nullptr;
    EXPECT_EQ(board.Window(), nullptr);
    EXPECT_EQ(board.Show(nullptr), BoardState::TakesInputAndInk);
}

TEST_F(Board, EndedBySomebodyElseIsHidden)
{
    board.Show(nullptr);
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    DestroyWindow(board.Window());
    EXPECT_EQ(board.State(), BoardState::Hidden);
    EXPECT_EQ(board.Window(), nullptr);
    EXPECT_EQ(taken.back().samples.back().pressure, 0);
    EXPECT_EQ(board.Show(nullptr), BoardState::TakesInputAndInk);
}

TEST_F(Board, KeepsWhatWhoTakesTheInputThrows)
{
    board.Show(nullptr);
    onTake = [] { throw std::runtime_error("no memory"); };
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    const std::exception_ptr failure = board.TakeFailure();
    ASSERT_NE(failure, nullptr);
    EXPECT_THROW(std::rethrow_exception(failure), std::runtime_error);
    EXPECT_EQ(board.TakeFailure(), nullptr);
    board.Hide(); // the end of the stroke throws too
    EXPECT_FALSE(board.IsShown());
    EXPECT_NE(board.TakeFailure(), nullptr);
}

TEST_F(Board, HasAPointerOfItsOwn)
{
    board.Show(nullptr);
    EXPECT_TRUE(
        Send(WM_SETCURSOR, reinterpret_cast<WPARAM>(board.Window()), MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    HCURSOR cursor = GetCursor();
    EXPECT_NE(cursor, LoadCursorW(nullptr, IDC_CROSS)); // it inverts, which on grey cannot be seen
    ICONINFO info = {};
    ASSERT_TRUE(GetIconInfo(cursor, &info));
    EXPECT_EQ(info.xHotspot, static_cast<DWORD>(GetSystemMetrics(SM_CXCURSOR)) / 2);
    EXPECT_EQ(info.yHotspot, static_cast<DWORD>(GetSystemMetrics(SM_CYCURSOR)) / 2);
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
}

TEST_F(Board, HasPressAndHoldAndFlicksOff)
{
    board.Show(nullptr);
    const auto property =
        reinterpret_cast<ULONG_PTR>(GetPropW(board.Window(), L"MicrosoftTabletPenServiceProperty"));
    EXPECT_NE(property & TABLET_DISABLE_PRESSANDHOLD, 0U);
    EXPECT_NE(property & TABLET_DISABLE_FLICKS, 0U);
    EXPECT_EQ(static_cast<ULONG_PTR>(Send(WM_TABLET_QUERYSYSTEMGESTURESTATUS)), property);
}

std::vector<FEEDBACK_TYPE> g_switchedOff;

BOOL WINAPI SwitchFeedback(HWND, FEEDBACK_TYPE kind, DWORD, UINT32 size, const void* isShown)
{
    if (size == sizeof(BOOL) && *static_cast<const BOOL*>(isShown) == FALSE) {
        g_switchedOff.push_back(kind);
    }
    return TRUE;
}

TEST_F(Board, HasTheRingsAtPenAndFingerOffWhereTheSystemHasThem)
{
    Hook<"GetProcAddress", decltype(GetProcAddress)> functions(program);
    functions.Answer([&](HMODULE module, const char* name) {
        return std::strcmp(name, "SetWindowFeedbackSetting") == 0
                   ? reinterpret_cast<FARPROC>(reinterpret_cast<void*>(SwitchFeedback))
                   : functions.Real(module, name);
    });
    board.Show(nullptr);
    EXPECT_THAT(g_switchedOff, SizeIs(11));
    EXPECT_THAT(g_switchedOff,
                testing::IsSupersetOf({FEEDBACK_PEN_PRESSANDHOLD, FEEDBACK_TOUCH_PRESSANDHOLD,
                                       FEEDBACK_TOUCH_CONTACTVISUALIZATION, FEEDBACK_PEN_TAP}));
}

TEST_F(Board, GivesBackWhatItTakes)
{
    const auto useIt = [this] {
        board.Show(nullptr);
        DrawLine(100, 50, 200, 50);
        Send(WM_DISPLAYCHANGE);
        board.Hide();
        PumpMessages();
    };
    useIt();
    const std::size_t before = zq::LM::test::GdiObjects();
    for (int i = 0; i < 5; ++i) {
        useIt();
    }
    EXPECT_EQ(zq::LM::test::GdiObjects(), before);
}

} // namespace
} // namespace lumora_pen::test
