// The overlay's care: it is made anew when it has to be, in the same style.
#include "program/ink_overlay.h"
#include "support/library/window_test.h"

#include <gmock/gmock.h>

#include <functional>
#include <utility>

namespace lumora_pen {

namespace {

lumora::Params Red()
{
    lumora::Params style;
    style.inkColor = {200, 0, 0};
    style.brushSize = 12;
    style.inkDecayTime = std::chrono::milliseconds(3000);
    return style;
}

TEST(InkOverlay, KeepsItsStyleWithAnotherBackEnd)
{
    InkOverlay ink(BackEndName::GDI, 0);
    ink.SetStyle(Red());
    ink.Use(BackEndName::Direct2D, 0);
    EXPECT_EQ(ink.BackEnd(), BackEndName::Direct2D);
    EXPECT_EQ(ink.Style().inkColor, Red().inkColor);
    EXPECT_EQ(ink.Style().brushSize, 12U);
}

TEST(InkOverlay, LeavesNoWindowBehindWhenTheBackEndChanges)
{
    InkOverlay ink(BackEndName::GDI, 0);
    HWND before = ink.Window();
    ink.Use(BackEndName::Direct2D, 0);
    EXPECT_FALSE(IsWindow(before));
}

TEST(InkOverlay, IsMadeAnewWhenItsWindowHasGone)
{
    InkOverlay ink(BackEndName::GDI, 0);
    ink.SetStyle(Red());
    EXPECT_FALSE(ink.LookAfter(1000));
    DestroyWindow(ink.Window());
    EXPECT_TRUE(ink.LookAfter(2000));
    EXPECT_TRUE(IsWindow(ink.Window()));
    EXPECT_EQ(ink.Style().inkColor, Red().inkColor);
}

TEST(InkOverlay, IsMadeAnewWhenTheClockBeginsAgain)
{
    InkOverlay ink(BackEndName::GDI, 0);
    EXPECT_FALSE(ink.LookAfter(0xFFFFFFF0));
    HWND before = ink.Window();
    EXPECT_TRUE(ink.LookAfter(20));
    EXPECT_FALSE(IsWindow(before));
    EXPECT_FALSE(ink.LookAfter(1000)) << "once";
}

TEST(InkOverlay, IsMadeAnewForAnotherLogLevel)
{
    InkOverlay ink(BackEndName::GDI, 0);
    ink.SetStyle(Red());
    ink.Use(BackEndName::GDI, 1);
    EXPECT_EQ(ink.LogLevel(), 1U);
    EXPECT_EQ(ink.Style().inkColor, Red().inkColor);
    ink.Use(BackEndName::GDI, 0); // or the next test would have a tray icon
}

// The system hands sent messages to a thread whose windows come and go.
class InkOverlayBeingMade : public testing::Test {
protected:
    InkOverlayBeingMade() { g_test = this; }
    ~InkOverlayBeingMade() override
    {
        UnhookWindowsHookEx(hook);
        g_test = nullptr;
    }

    // Acts once, at the next window that is made or goes.
    void Arm(int moment, std::function<void()> what)
    {
        armed = moment;
        action = std::move(what);
    }

    InkOverlay ink{BackEndName::GDI, 0};
    std::function<void()> action;

private:
    static LRESULT CALLBACK Act_(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == g_test->armed && g_test->action) {
            std::exchange(g_test->action, nullptr)();
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    inline static InkOverlayBeingMade* g_test = nullptr;
    HHOOK hook = SetWindowsHookExW(WH_CBT, Act_, nullptr, GetCurrentThreadId());
    int armed = 0;
};

TEST_F(InkOverlayBeingMade, IsTheOneThatWasWantedLast)
{
    for (const int moment : {HCBT_DESTROYWND, HCBT_CREATEWND}) {
        SCOPED_TRACE(moment);
        ink.Use(BackEndName::Direct2D, 0);
        Arm(moment, [this] { ink.Use(BackEndName::GDI, 0); });
        ink.Use(BackEndName::Composition, 0);
        EXPECT_FALSE(action) << "it has acted";
        EXPECT_EQ(ink.BackEnd(), BackEndName::GDI);
        EXPECT_EQ(lumora::Overlay::UsedBackEnd(), lumora::BackEnd::GDI);
        EXPECT_TRUE(IsWindow(ink.Window()));
    }
}

TEST_F(InkOverlayBeingMade, TakesTheStyleOfThatMoment)
{
    Arm(HCBT_CREATEWND, [this] {
        ink.SetStyle(Red());
        ink.Input({{100, 100, FullPressure, 1}});
        ink.Wipe();
        EXPECT_FALSE(ink.LookAfter(1000));
    });
    ink.Use(BackEndName::Direct2D, 0);
    EXPECT_FALSE(action) << "it has acted";
    EXPECT_EQ(ink.Style().inkColor, Red().inkColor);
}

TEST(InkOverlay, WipingKeepsTheStyle)
{
    InkOverlay ink(BackEndName::GDI, 0);
    ink.SetStyle(Red());
    ink.Input({{100, 100, FullPressure, 1}, {120, 100, FullPressure, 2}, {120, 100, 0, 3}});
    ink.Wipe();
    EXPECT_EQ(ink.Style().inkDecayTime, Red().inkDecayTime);
    EXPECT_EQ(ink.Style().inkColor, Red().inkColor);
}

TEST(InkOverlay, OwnWindowIsNoOtherProgramsOverlay)
{
    const InkOverlay ink(BackEndName::GDI, 0);
    EXPECT_FALSE(IsAnotherOverlayShown());
}

} // namespace

} // namespace lumora_pen
