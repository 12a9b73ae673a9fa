// The overlay window's message table: lines and results.
#include "support/library/window_test.h"

namespace zq::LM::test {

namespace {

constexpr std::uint32_t Normal = 2;
constexpr LRESULT Handled = 0;

} // namespace

class MessagesTest : public WindowTest {
protected:
    // A window that owes no paint, at the level of the lines per message.
    HWND CreateQuiet()
    {
        HWND window = CreateWithGDI();
        UpdateWindow(window);
        library.SetDebugLevel(Normal);
        debugger.Clear();
        return window;
    }
};

TEST_F(MessagesTest, Create)
{
    library.SetDebugLevel(Normal);
    RecordHotkey(false);
    debugger.Clear();
    library.Create();
    EXPECT_EQ(debugger.Texts(),
              (Lines{"zq::CallFunc::Create\n", VersionLine(), "DirectCompositionImpl(Constructor)\n",
                     "zq::LM::GDI::GDI(Constructor)\n", "WM_CREATE ... ", "done\n",
                     "zq::LM::DirectComposition::InitTransparentWindow\n",
                     "InitTransparentWindowCore_ is failed.", "Exception is thrown!\n"}));
}

TEST_F(MessagesTest, Destroy)
{
    CreateQuiet();
    library.Destroy();
    EXPECT_EQ(debugger.Texts(),
              (Lines{"zq::CallFunc::Destroy\n", "WM_DESTROY ... ", "done\n",
                     "~DirectCompositionImpl(Destructor)\n", "zq::LM::GDI::~GDI(Destructor)\n"}));
}

TEST_F(MessagesTest, DestroyPostsAQuitMessageOfCodeZero)
{
    HWND window = CreateQuiet();
    calls.Record<"PostQuitMessage">(PostQuitMessage);
    library.Destroy();
    EXPECT_EQ(calls.Take(), Lines{"PostQuitMessage(0)"});
    EXPECT_FALSE(IsWindow(window));
    EXPECT_TRUE(PumpMessages());
}

TEST_F(MessagesTest, Paint)
{
    HWND window = CreateQuiet();
    PaintAgain(window);
    EXPECT_EQ(debugger.Texts(), (Lines{"WM_PAINT ... ", "done\n"}));
    EXPECT_EQ(SendMessageW(window, WM_PAINT, 0, 0), Handled);
}

TEST_F(MessagesTest, AKnownCommandOfWhichOnlyTheLowWordCounts)
{
    HWND window = CreateQuiet();
    for (const int high : {0, 1}) {
        debugger.Clear();
        EXPECT_EQ(SendMessageW(window, WM_COMMAND, MAKEWPARAM(ChooseDirect2D, high), 0), Handled);
        EXPECT_EQ(debugger.Texts(),
                  (Lines{"WM_COMMAND ... ", "Direct2D is set.\n", "InvalidateRect is called.\n", "done\n"}));
    }
}

TEST_F(MessagesTest, AnUnknownCommandRepaintsToo)
{
    HWND window = CreateQuiet();
    RecordInvalidations();
    EXPECT_EQ(SendMessageW(window, WM_COMMAND, 7, 0), Handled);
    EXPECT_EQ(debugger.Texts(), (Lines{"WM_COMMAND ... ", "InvalidateRect is called.\n", "done\n"}));
    EXPECT_EQ(calls.Take(), Lines{"InvalidateRect(window 1, null, 0)"});
}

TEST_F(MessagesTest, ATickOfAnyTimer)
{
    HWND window = CreateQuiet();
    for (const WPARAM id : {WPARAM{12345}, WPARAM{1}, WPARAM{0}}) {
        debugger.Clear();
        EXPECT_EQ(SendMessageW(window, WM_TIMER, id, 0), Handled);
        EXPECT_EQ(debugger.Texts(), (Lines{"WM_TIMER ... ", "done.\n"})) << id;
    }
}

TEST_F(MessagesTest, ATickOfAnyTimerAgesInk)
{
    HWND window = CreateQuiet();
    library.SetDebugLevel(0);
    InputStroke();
    Paint();
    SendMessageW(window, WM_TIMER, 1, 0);
    clock.Advance(100);
    RecordInvalidations();
    SendMessageW(window, WM_TIMER, 2, 0);
    EXPECT_EQ(Invalidations(), 1U);
}

TEST_F(MessagesTest, EveryOtherMessageHasTheSystemsAnswer)
{
    HWND window = CreateQuiet();
    constexpr LRESULT Answer = 77;
    calls.Answer<"DefWindowProcW">(DefWindowProcW, [](HWND, UINT, WPARAM, LPARAM) { return Answer; });
    for (const UINT message : {UINT{WM_NCHITTEST}, UINT{WM_CLOSE}, UINT{WM_LBUTTONDOWN}, UINT{WM_SIZE},
                               UINT{WM_USER}, UINT{WM_APP}}) {
        EXPECT_EQ(SendMessageW(window, message, 0, 0), Answer) << message;
    }
    EXPECT_EQ(calls.Count("DefWindowProcW"), 6U);
    EXPECT_EQ(debugger.Texts(), Lines{});
}

TEST_F(MessagesTest, CloseDestroysTheWindow)
{
    HWND window = CreateQuiet();
    SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(debugger.Texts(), (Lines{"WM_DESTROY ... ", "done\n"}));
    EXPECT_TRUE(PumpMessages());
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
}

TEST_F(MessagesTest, BelowTheirLevelNoneIsNoted)
{
    HWND window = CreateQuiet();
    library.SetDebugLevel(1);
    debugger.Clear();
    PaintAgain(window);
    SendMessageW(window, WM_TIMER, 12345, 0);
    SendMessageW(window, WM_HOTKEY, 1, 0);
    SendMessageW(window, WM_COMMAND, 7, 0);
    SendMessageW(window, WM_CLOSE, 0, 0);
    EXPECT_EQ(debugger.Texts(), Lines{});
}

} // namespace zq::LM::test
