// How one paint goes: the screen check, then a frame between BeginPaint and EndPaint.
#include "support/library/window_test.h"

#include <algorithm>

namespace zq::LM::test {

namespace {

constexpr COLORREF White = RGB(255, 255, 255);
constexpr COLORREF Black = RGB(0, 0, 0);

} // namespace

class PaintingTest : public WindowTest {
protected:
    // A window that owes no paint, its calls known by name.
    HWND CreateRecorded()
    {
        RecordCreation();
        HWND window = library.Create();
        UpdateWindow(window);
        calls.Record<"GetShellWindow">(GetShellWindow);
        calls.Take();
        return window;
    }

    Lines CallsOfOnePaint(HWND window)
    {
        PaintAgain(window);
        return calls.Take();
    }

    // After a move of the shell: how the window follows at its next paint, and what is then on the screen.
    void ExpectOverlayToFollow(const RECT& place);
};

TEST_F(PaintingTest, ForGDIAFrameIsDrawnIntoMemoryAndCopied)
{
    SelectGDI();
    HWND window = CreateRecorded();
    EXPECT_EQ(CallsOfOnePaint(window),
              (Lines{"GetShellWindow()", "BeginPaint(window 1, *)", "GetDC(window 1)",
                     "SetBkColor(dc of window 1, 0xFF00FF)", "CreateSolidBrush(0xFF00FF)",
                     "PatBlt(memory dc, 0, 0, 640, 480, 0xF00021)", "DeleteObject(brush 0xFF00FF)",
                     "BitBlt(dc of window 1, 0, 0, 640, 480, memory dc, 0, 0, 0xCC0020)",
                     "ReleaseDC(window 1, dc of window 1)", "EndPaint(window 1, *)"}));
}

TEST_F(PaintingTest, ForDirectCompositionOnlyTheBackEndDraws)
{
    HWND window = CreateRecorded();
    EXPECT_EQ(CallsOfOnePaint(window),
              (Lines{"GetShellWindow()", "BeginPaint(window 1, *)", "EndPaint(window 1, *)"}));
}

TEST_F(PaintingTest, WithoutAMemorySurfaceOneIsTriedAgainAndTheWindowIsCleared)
{
    SelectGDI();
    calls.Answer<"CreateCompatibleBitmap">(CreateCompatibleBitmap,
                                           [](HDC, int, int) -> HBITMAP { return nullptr; });
    HWND window = CreateRecorded();
    EXPECT_EQ(CallsOfOnePaint(window),
              (Lines{"GetShellWindow()", "GetShellWindow()", "GetDC(window 1)",
                     "CreateCompatibleDC(dc of window 1)", "CreateCompatibleBitmap(dc of window 1, 640, 480)",
                     "DeleteDC(memory dc)", "ReleaseDC(window 1, dc of window 1)", "BeginPaint(window 1, *)",
                     "GetDC(window 1)", "SetBkColor(dc of window 1, 0xFF00FF)", "GetDC(window 1)",
                     "CreateSolidBrush(0xFF00FF)", "PatBlt(dc of window 1, 0, 0, 640, 480, 0xF00021)",
                     "DeleteObject(brush 0xFF00FF)", "ReleaseDC(window 1, dc of window 1)",
                     "ReleaseDC(window 1, dc of window 1)", "EndPaint(window 1, *)"}));
    EXPECT_FALSE(IsInvalid());
}

TEST_F(PaintingTest, APaintTakesPendingSamples)
{
    const Backdrop below(WholeScreen, Green);
    CreateWithGDI();
    InputStroke();
    PaintWhole();
    EXPECT_FALSE(IsInvalid());
    SettleScreen();
    EXPECT_EQ(TakePicture(WholeScreen).At(325, 160), Ink);
}

TEST_F(PaintingTest, ALookAtTheScreenComesBeforeBeginPaint)
{
    SelectGDI();
    HWND window = CreateRecorded();
    shell.Move({100, 40, 900, 640});
    const Lines made = CallsOfOnePaint(window);
    const auto follow =
        std::find(made.begin(), made.end(), "SetWindowPos(window 1, topmost, 100, 40, 800, 600, 64)");
    const auto begin = std::find(made.begin(), made.end(), "BeginPaint(window 1, *)");
    ASSERT_NE(follow, made.end());
    EXPECT_LT(follow, begin);
}

TEST_F(PaintingTest, TheMemorySurfaceIsMadeAnewForANewScreen)
{
    SelectGDI();
    HWND window = CreateRecorded();
    shell.Move({100, 40, 900, 640});
    PaintAgain(window);
    EXPECT_EQ(calls.Of("CreateCompatibleBitmap"), Lines{"CreateCompatibleBitmap(dc of window 1, 800, 600)"});
    EXPECT_EQ(calls.Of("DeleteDC"), Lines{"DeleteDC(memory dc)"});
    EXPECT_EQ(calls.Of("BitBlt").back(), "BitBlt(dc of window 1, 0, 0, 800, 600, memory dc, 0, 0, 0xCC0020)");
}

TEST_F(PaintingTest, ANewScreenIsFollowedOnce)
{
    SelectGDI();
    HWND window = CreateRecorded();
    shell.Move({100, 40, 900, 640});
    PaintAgain(window);
    PumpMessages();
    calls.Take();
    CallsOfOnePaint(window);
    PaintAgain(window);
    EXPECT_EQ(calls.Count("SetWindowPos"), 0U);
    EXPECT_EQ(calls.Count("CreateCompatibleBitmap"), 0U);
}

TEST_F(PaintingTest, ForDirectCompositionTheWindowFollowsWithoutAMemorySurface)
{
    HWND window = CreateRecorded();
    shell.Move({100, 40, 900, 640});
    PaintAgain(window);
    EXPECT_EQ(calls.Of("SetWindowPos"), Lines{"SetWindowPos(window 1, topmost, 100, 40, 800, 600, 64)"});
    EXPECT_EQ(calls.Count("CreateCompatibleDC"), 0U);
}

void PaintingTest::ExpectOverlayToFollow(const RECT& place)
{
    const Backdrop below(WholeScreen, Green);
    HWND window = CreateWithGDI();
    Paint();
    shell.Move(place);
    const int lastX = place.right - place.left - 20;
    const int lastY = place.bottom - place.top - 20;
    InputAndPaint({Sample(lastX - 60, lastY), Sample(lastX, lastY)}); // near the new lower right corner

    EXPECT_TRUE(IsAt(window, place));
    const Picture picture = TakePicture(WholeScreen);
    EXPECT_EQ(picture.At(place.left + lastX - 30, place.top + lastY), Ink);
    EXPECT_EQ(picture.Count(White), 0U);
    EXPECT_EQ(picture.Count(Black), 0U);
    const RECT ink = picture.BoundsOfOther(Green); // nothing but the stroke and its caps
    EXPECT_GE(ink.left, place.left + lastX - 60 - 7);
    EXPECT_LE(ink.right, place.left + lastX + 7);
    EXPECT_GE(ink.top, place.top + lastY - 7);
    EXPECT_LE(ink.bottom, place.top + lastY + 7);
}

TEST_F(PaintingTest, TheOverlayFollowsAMoveOfTheShell) { ExpectOverlayToFollow({260, 130, 900, 610}); }
TEST_F(PaintingTest, TheOverlayFollowsAMoreDistantCorner) { ExpectOverlayToFollow({100, 30, 1000, 700}); }
TEST_F(PaintingTest, TheOverlayFollowsAShellThatGrowsInWidthOnly)
{
    ExpectOverlayToFollow({200, 60, 1000, 540});
}
TEST_F(PaintingTest, TheOverlayFollowsAShellThatGrowsInHeightOnly)
{
    ExpectOverlayToFollow({200, 60, 840, 740});
}
TEST_F(PaintingTest, TheOverlayFollowsAShellThatShrinks) { ExpectOverlayToFollow({200, 60, 500, 300}); }

TEST_F(PaintingTest, WithoutAShellFromNowOnTheOverlayStaysWhereItIs)
{
    const Backdrop below(WholeScreen, Green);
    HWND window = CreateWithGDI();
    Paint();
    shell.Remove();
    RecordPainting();
    InputStroke();
    Paint();
    EXPECT_EQ(calls.Count("SetWindowPos"), 0U);
    EXPECT_EQ(calls.Count("CreateCompatibleBitmap"), 0U);
    EXPECT_EQ(TakePicture(WholeScreen).At(325, 160), Ink);
    EXPECT_TRUE(IsAt(window, Desktop));
}

TEST_F(PaintingTest, WithoutAnyShellTheOverlayIsASquareAtTheOrigin)
{
    const Backdrop below(WholeScreen, Green);
    shell.Remove();
    SelectGDI();
    RecordCreation();
    library.Create();
    EXPECT_EQ(
        calls.Of("CreateWindowExW"),
        Lines{"CreateWindowExW(136, \"Lumora Window Class_00001\", \"Lumora DLL Window\", 0x90000000, 0, "
              "0, 256, 256, null, null, module, null)"});
    EXPECT_EQ(calls.Of("CreateCompatibleBitmap"), Lines{"CreateCompatibleBitmap(dc of window 1, 256, 256)"});
    EXPECT_EQ(calls.Count("SetWindowPos"), 0U);
    InputStroke();
    Paint();
    const Picture picture = TakePicture(WholeScreen);
    EXPECT_EQ(picture.At(125, 100), Ink);
    EXPECT_EQ(picture.Count(White), 0U);
    EXPECT_EQ(picture.Count(Black), 0U);
}

TEST_F(PaintingTest, AShellThatComesLaterIsFollowed)
{
    shell.Remove();
    CreateWithGDI();
    Paint();
    constexpr RECT Place = {300, 200, 700, 500};
    const ShellStandIn later(library.Module(), Place);
    InputStroke();
    Paint();
    EXPECT_TRUE(IsAt(library.GetWindowHandle(), Place));
}

} // namespace zq::LM::test
