// The steps between a new window and a usable one: size, memory surface, hotkey, timer.
#include "support/library/window_test.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

const std::string FitDesktop = "SetWindowPos(window 1, topmost, 0, 0, 640, 480, 64)";
const std::string ClearDesktop = "PatBlt(dc of window 1, 0, 0, 640, 480, 0xF00021)";
const std::string ClearSurface = "PatBlt(memory dc, 0, 0, 640, 480, 0xF00021)";
constexpr int Width = 640;
constexpr int Height = 480;

} // namespace

class SetUpTest : public WindowTest {
protected:
    // The system gives the library's next window another size than it asked for.
    void MakeWindowsOf(int width, int height)
    {
        calls.Answer<"CreateWindowExW">(CreateWindowExW, [=](DWORD extendedStyle, LPCWSTR name, LPCWSTR title,
                                                             DWORD style, int x, int y, int, int, HWND parent,
                                                             HMENU menu, HINSTANCE module, LPVOID data) {
            return ::CreateWindowExW(extendedStyle, name, title, style, x, y, width, height, parent, menu,
                                     module, data);
        });
    }
};

TEST_F(SetUpTest, AWindowThatHasTheScreensWidthOrHeightIsNotResized)
{
    RecordPainting();
    for (const SIZE size : {SIZE{Width, Height}, SIZE{Width - 40, Height}, SIZE{Width, Height - 40}}) {
        MakeWindowsOf(size.cx, size.cy);
        library.Create();
        EXPECT_EQ(calls.Count("SetWindowPos"), 0U) << size.cx << " x " << size.cy;
    }
}

TEST_F(SetUpTest, AWindowThatDiffersInBothIsResizedAtTheOriginAndClearedForGDI)
{
    SelectGDI();
    MakeWindowsOf(Width - 40, Height - 40);
    RecordPainting();
    HWND window = library.Create();
    EXPECT_EQ(calls.Of("SetWindowPos"), Lines{FitDesktop});
    // After the resize, after the frame, and the new surface.
    EXPECT_EQ(calls.Of("PatBlt"), (Lines{ClearDesktop, ClearDesktop, ClearSurface}));
    EXPECT_TRUE(IsAt(window, {0, 0, Width, Height}));
}

TEST_F(SetUpTest, AWindowOfTheRightSizeIsClearedForGDIOnceAfterTheFrame)
{
    SelectGDI();
    RecordPainting();
    library.Create();
    EXPECT_EQ(calls.Of("PatBlt"), (Lines{ClearDesktop, ClearSurface}));
}

TEST_F(SetUpTest, AResizedWindowIsNotClearedForDirectComposition)
{
    MakeWindowsOf(Width - 40, Height - 40);
    RecordPainting();
    library.Create();
    EXPECT_EQ(calls.Of("SetWindowPos"), Lines{FitDesktop});
    EXPECT_EQ(calls.Count("PatBlt"), 0U);
}

TEST_F(SetUpTest, AShellThatMovesBeforeTheWindowExistsIsFollowedDuringCreation)
{
    const RECT moved = {100, 40, 800, 640};
    calls.Answer<"RegisterClassExW">(RegisterClassExW, [&](const WNDCLASSEXW* description) {
        shell.Move(moved);
        return ::RegisterClassExW(description);
    });
    RecordPainting();
    HWND window = library.Create();
    EXPECT_EQ(calls.Of("SetWindowPos"), Lines{"SetWindowPos(window 1, topmost, 100, 40, 700, 600, 64)"});
    EXPECT_TRUE(IsAt(window, moved));
}

TEST_F(SetUpTest, TheMemorySurfaceHasTheSizeOfTheShellsClientArea)
{
    SelectGDI();
    calls.Answer<"GetClientRect">(GetClientRect, [this](HWND window, RECT* rectangle) -> BOOL {
        if (window != shell.Window()) {
            return ::GetClientRect(window, rectangle);
        }
        *rectangle = {0, 0, 500, 300};
        return TRUE;
    });
    RecordPainting();
    library.Create();
    EXPECT_EQ(calls.Of("CreateCompatibleDC"), Lines{"CreateCompatibleDC(dc of window 1)"});
    EXPECT_EQ(calls.Of("CreateCompatibleBitmap"), Lines{"CreateCompatibleBitmap(dc of window 1, 500, 300)"});
}

TEST_F(SetUpTest, Direct2DHasAMemorySurfaceToo)
{
    Select(ChooseDirect2D);
    RecordPainting();
    library.Create();
    EXPECT_EQ(calls.Of("CreateCompatibleBitmap"), Lines{"CreateCompatibleBitmap(dc of window 1, 640, 480)"});
}

TEST_F(SetUpTest, DirectCompositionHasNoMemorySurface)
{
    RecordPainting();
    library.Create();
    EXPECT_EQ(calls.Count("CreateCompatibleDC"), 0U);
    EXPECT_EQ(calls.Count("CreateCompatibleBitmap"), 0U);
}

TEST_F(SetUpTest, TheFirstFrameDrawsNothingBecauseTheSurfaceComesAfterIt)
{
    SelectGDI();
    RecordPainting();
    library.Create();
    // The clears are the window's own and the new surface's; a frame into the surface would be one more.
    const Lines made = calls.Take();
    const auto clear = std::find(made.begin(), made.end(), ClearDesktop);
    const auto surface = std::find(made.begin(), made.end(), "CreateCompatibleDC(dc of window 1)");
    EXPECT_LT(clear, surface);
    EXPECT_EQ(std::count(made.begin(), made.end(), ClearSurface), 1);
}

TEST_F(SetUpTest, WithoutTheUserInterfaceThereIsNoHotkey)
{
    RecordHotkey(false);
    library.Create();
    DestroyAndForget();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(SetUpTest, WithTheUserInterfaceTheHotkeyIsRegisteredAndItsAtomGivenBack)
{
    RecordHotkey(false);
    library.SetDebugLevel(1);
    library.Create();
    EXPECT_EQ(calls.Take(),
              (Lines{"GlobalAddAtomW(\"Lumora Hotkey\")", "RegisterHotKey(window 1, 49443, 7, 87)"}));
    DestroyAndForget(); // the window takes the hotkey along
    EXPECT_EQ(calls.Take(), Lines{"GlobalDeleteAtom(49443)"});
}

TEST_F(SetUpTest, AHotkeyThatIsTakenIsLeftOutInSilence)
{
    RecordHotkey(true);
    library.SetDebugLevel(1);
    debugger.Clear();
    EXPECT_NE(library.Create(), nullptr);
    EXPECT_EQ(calls.Take(), (Lines{"GlobalAddAtomW(\"Lumora Hotkey\")",
                                   "RegisterHotKey(window 1, 49443, 7, 87)", "GlobalDeleteAtom(49443)"}));
    EXPECT_EQ(debugger.Texts(), (Lines{"zq::CallFunc::Create\n", VersionLine()}));
    DestroyAndForget();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(SetUpTest, WithoutAnAtomNoHotkeyIsTried)
{
    RecordHotkey(false);
    calls.Answer<"GlobalAddAtomW">(GlobalAddAtomW, [](LPCWSTR) { return ATOM{0}; });
    library.SetDebugLevel(1);
    EXPECT_NE(library.Create(), nullptr);
    DestroyAndForget();
    EXPECT_EQ(calls.Take(), Lines{"GlobalAddAtomW(\"Lumora Hotkey\")"});
}

TEST_F(SetUpTest, TheDeviceContextReadForThePixelSizeIsTheOnlyOneKept)
{
    SelectGDI();
    RecordPainting();
    library.Create();
    InputStroke();
    Paint();
    DestroyAndForget();
    EXPECT_EQ(calls.Count("GetDC"), calls.Count("ReleaseDC") + 1);
    EXPECT_EQ(calls.Count("BeginPaint"), calls.Count("EndPaint"));
}

} // namespace zq::LM::test
