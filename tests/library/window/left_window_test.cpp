// Windows that a change of the back-end leaves behind: cleared, quiet and harmless.
#include "support/library/window_test.h"

#include <thread>

namespace zq::LM::test {

class LeftWindowTest : public WindowTest {
protected:
    // The window of a GDI instance, left by a change to another back-end.
    void Leave()
    {
        SelectGDI();
        left = library.Create();
        calls.Name(left, "left");
        Choose(ChooseDirectComposition);
        InputStroke();
        PumpMessages();
        UpdateWindow(library.GetWindowHandle());
    }

    HWND left = nullptr;
};

TEST_F(LeftWindowTest, APaintValidatesItAndPaintsTheKey)
{
    Leave();
    RecordPainting();
    PaintAgain(left);
    EXPECT_FALSE(GetUpdateRect(left, nullptr, FALSE));
    EXPECT_EQ(calls.Take(), (Lines{"BeginPaint(left, *)", "CreateSolidBrush(0xFF00FF)",
                                   "PatBlt(*, 0, 0, 640, 480, 0xF00021)", "DeleteObject(brush 0xFF00FF)",
                                   "EndPaint(left, *)"}));
}

TEST_F(LeftWindowTest, ItsMessagesDoNotReachTheLivingInstance)
{
    Leave();
    library.SetDebugLevel(255);
    RecordInvalidations();
    debugger.Clear();
    for (const UINT message :
         {UINT{WM_TIMER}, UINT{WM_COMMAND}, UINT{WM_HOTKEY}, UINT{WM_APP + 46}, UINT{WM_PAINT}}) {
        EXPECT_EQ(SendMessageW(left, message, ChooseDirect2D, 0), 0);
    }
    EXPECT_EQ(debugger.Texts(), Lines{});
    EXPECT_EQ(calls.Take(), Lines{});
    HWND window = library.GetWindowHandle();
    InputStroke(); // no type was chosen, so nothing is rebuilt
    EXPECT_EQ(library.GetWindowHandle(), window);
}

TEST_F(LeftWindowTest, ItsTicksDoNotAgeInk)
{
    SelectGDI();
    left = library.Create();
    Choose(ChooseDirect2D);
    Choose(ChooseGDI);
    InputStroke();
    InputStroke();
    Paint();
    Tick();
    clock.Advance(100);
    RecordInvalidations();
    SendMessageW(left, WM_TIMER, 12345, 0);
    EXPECT_EQ(Invalidations(), 0U);
    Tick();
    EXPECT_EQ(Invalidations(), 1U);
}

TEST_F(LeftWindowTest, OtherMessagesHaveTheSystemsAnswer)
{
    Leave();
    wchar_t text[32]{};
    EXPECT_EQ(SendMessageW(left, WM_GETTEXT, 32, reinterpret_cast<LPARAM>(text)), 17);
    EXPECT_STREQ(text, L"Lumora DLL Window");
}

TEST_F(LeftWindowTest, IsHarmlessAfterTheInstanceIsGone)
{
    Leave();
    DestroyAndForget();
    library.SetDebugLevel(255);
    debugger.Clear();
    ASSERT_TRUE(IsWindow(left));
    for (const UINT message :
         {UINT{WM_TIMER}, UINT{WM_COMMAND}, UINT{WM_HOTKEY}, UINT{WM_APP + 46}, UINT{WM_SIZE}}) {
        SendMessageW(left, message, ChooseDirect2D, 0);
    }
    PaintAgain(left);
    EXPECT_FALSE(GetUpdateRect(left, nullptr, FALSE));
    EXPECT_EQ(debugger.Texts(), Lines{});
}

TEST_F(LeftWindowTest, IsHarmlessBesideALaterInstance)
{
    Leave();
    DestroyAndForget();
    HWND window = library.Create();
    library.SetDebugLevel(255);
    debugger.Clear();
    SendMessageW(left, WM_TIMER, 12345, 0);
    SendMessageW(left, WM_COMMAND, ChooseDirect2D, 0);
    EXPECT_EQ(debugger.Texts(), Lines{});
    SendMessageW(left, WM_CLOSE, 0, 0);
    EXPECT_FALSE(PumpMessages());
    EXPECT_EQ(library.GetWindowHandle(), window);
}

TEST_F(LeftWindowTest, ClosesWithoutAQuitMessage)
{
    Leave();
    HWND window = library.GetWindowHandle();
    SendMessageW(left, WM_CLOSE, 0, 0);
    EXPECT_FALSE(IsWindow(left));
    EXPECT_FALSE(PumpMessages());
    EXPECT_EQ(library.GetWindowHandle(), window);
}

TEST_F(LeftWindowTest, APumpComesToRest)
{
    Leave();
    InvalidateRect(left, nullptr, FALSE);
    constexpr int Plenty = 1000;
    int dispatched = 0;
    MSG message;
    while (dispatched < Plenty && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        DispatchMessageW(&message);
        ++dispatched;
    }
    EXPECT_LT(dispatched, Plenty);
    EXPECT_GT(dispatched, 0); // its paint was among them
}

// A host may unload the library; the window procedure of a window that was left must stay.
TEST(UnloadedLibrary, StaysForAWindowThatWasLeft)
{
    HWND left = nullptr;
    {
        const Library library;
        const NoGraphicsDevice noDevice(library.Module());
        left = library.Create();
        SendMessageW(left, WM_COMMAND, ChooseGDI, 0);
        library.InputPenDataArray(nullptr, 0);
        library.Destroy();
    }
    EXPECT_NE(GetModuleHandleW(L"LumoraDLL.dll"), nullptr);
    ASSERT_TRUE(IsWindow(left));
    SendMessageW(left, WM_SETTINGCHANGE, 0, 0); // as a broadcast reaches every window
    DestroyWindow(left);
    EXPECT_FALSE(IsWindow(left));
}

TEST(UnloadedLibrary, StaysForAWindowThatAnotherThreadCannotDestroy)
{
    HWND left = nullptr;
    {
        const Library library;
        const NoGraphicsDevice noDevice(library.Module());
        left = library.Create();
        std::thread([&library] { library.Destroy(); }).join();
    }
    ASSERT_NE(GetModuleHandleW(L"LumoraDLL.dll"), nullptr);
    ASSERT_TRUE(IsWindow(left));
    DestroyWindow(left);
    EXPECT_FALSE(IsWindow(left));
}

TEST(UnloadedLibrary, GoesWhenNoWindowWasLeft)
{
    {
        const Library library;
        const NoGraphicsDevice noDevice(library.Module());
        library.Create();
        library.Destroy();
    }
    EXPECT_EQ(GetModuleHandleW(L"LumoraDLL.dll"), nullptr);
}

} // namespace zq::LM::test
