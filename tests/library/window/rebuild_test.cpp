// The change of the back-end: commands that only note it, and the pen input that rebuilds the overlay.
#include "support/library/window_test.h"

#include <cstring>

namespace zq::LM::test {

class RebuildTest : public WindowTest {
protected:
    // What a command writes at the level.
    Lines LinesOfChoosing(WPARAM command, std::uint32_t level)
    {
        library.SetDebugLevel(level);
        HWND window = library.GetWindowHandle();
        debugger.Clear();
        SendMessageW(window, WM_COMMAND, command, 0);
        return debugger.Texts();
    }

    bool RebuildsWithTheNextInput()
    {
        HWND before = library.GetWindowHandle();
        InputStroke();
        return library.GetWindowHandle() != before;
    }

    COLORREF ScreenAtStroke() const { return TakePicture(WholeScreen).At(325, 160); }
};

TEST_F(RebuildTest, EachCommandSaysItsTypeAtTheBasicLevel)
{
    library.Create();
    EXPECT_EQ(LinesOfChoosing(ChooseDirectComposition, 1), Lines{"Direct Composition is set.\n"});
    EXPECT_EQ(LinesOfChoosing(ChooseDirect2D, 1), Lines{"Direct2D is set.\n"});
    EXPECT_EQ(LinesOfChoosing(ChooseGDI, 1), Lines{"GDI is set.\n"});
    EXPECT_EQ(LinesOfChoosing(ChooseGDI, 1), Lines{"GDI is set.\n"}); // the same again
    EXPECT_EQ(LinesOfChoosing(ChooseDirectComposition, 0), Lines{});
}

TEST_F(RebuildTest, ACommandOnlyRepaints)
{
    HWND window = library.Create();
    UpdateWindow(window);
    RecordCreation();
    RecordInvalidations();
    Choose(ChooseGDI);
    EXPECT_EQ(calls.Take(), Lines{"InvalidateRect(window 1, null, 0)"});
    EXPECT_EQ(library.GetWindowHandle(), window);
    EXPECT_TRUE(IsInvalid());
    Tick();
    Paint();
    EXPECT_EQ(library.GetWindowHandle(), window);
    EXPECT_EQ(calls.Count("CreateWindowExW"), 0U);
}

TEST_F(RebuildTest, PaintsBetweenACommandAndTheRebuildAreHarmless)
{
    library.Create();
    for (const WPARAM from : {ChooseDirectComposition, ChooseDirect2D, ChooseGDI}) {
        for (const WPARAM to : {ChooseDirectComposition, ChooseDirect2D, ChooseGDI}) {
            Choose(from);
            InputStroke(); // rebuilds, if need be
            InputStroke();
            SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
            Choose(to);
            PaintWhole();
            EXPECT_FALSE(IsInvalid());
        }
    }
}

TEST_F(RebuildTest, TheActiveTypeAgainRebuildsNothing)
{
    library.Create();
    Choose(ChooseDirectComposition);
    EXPECT_FALSE(RebuildsWithTheNextInput());
}

TEST_F(RebuildTest, AnotherTypeRebuildsOnce)
{
    library.Create();
    Choose(ChooseDirect2D);
    EXPECT_TRUE(RebuildsWithTheNextInput());
    EXPECT_FALSE(RebuildsWithTheNextInput());
    Choose(ChooseDirect2D);
    EXPECT_FALSE(RebuildsWithTheNextInput());
}

TEST_F(RebuildTest, ThereAndBackStillRebuilds)
{
    SelectGDI();
    library.Create();
    Choose(ChooseDirect2D);
    Choose(ChooseGDI);
    EXPECT_TRUE(RebuildsWithTheNextInput());
}

TEST_F(RebuildTest, TheSameChoiceTwiceStillRebuilds)
{
    library.Create();
    Choose(ChooseGDI);
    Choose(ChooseGDI); // the active type by now, but not the window's
    EXPECT_TRUE(RebuildsWithTheNextInput());
}

TEST_F(RebuildTest, AnInputOfNothingRebuildsToo)
{
    HWND left = library.Create();
    Choose(ChooseGDI);
    library.InputPenDataArray(nullptr, 0);
    EXPECT_NE(library.GetWindowHandle(), left);
    EXPECT_TRUE(IsWindow(left));
}

TEST_F(RebuildTest, ANewInstanceHasTheTypeAndNothingToRebuild)
{
    library.Create();
    Choose(ChooseGDI);
    DestroyAndForget();
    library.Create();
    EXPECT_FALSE(RebuildsWithTheNextInput());
}

TEST_F(RebuildTest, TheOldWindowIsClearedAndEverythingElseTakenFromItBeforeTheNewOne)
{
    SelectGDI();
    RecordCreation();
    library.Create();
    Choose(ChooseDirectComposition);
    calls.Take();
    InputStroke();
    EXPECT_EQ(calls.Take(),
              (Lines{"GetDC(window 1)", "CreateSolidBrush(0xFF00FF)",
                     "PatBlt(dc of window 1, 0, 0, 640, 480, 0xF00021)", "DeleteObject(brush 0xFF00FF)",
                     "ReleaseDC(window 1, dc of window 1)", "DeleteDC(memory dc)", "DeleteObject(bitmap)",
                     "KillTimer(window 1, 12345)", "LoadImageW(null, #32512, 2, 0, 0, 32832)",
                     "RegisterClassExW(\"Lumora Window Class_00002\")",
                     "CreateWindowExW(0x200088, \"Lumora Window Class_00002\", \"Lumora DLL Window\", "
                     "0x90000000, 200, 60, 640, 480, null, null, module, null)",
                     "GetDC(window 2)", "GetDeviceCaps(dc of window 2, 4)",
                     "GetDeviceCaps(dc of window 2, 6)", "SetTimer(window 2, 12345, 50, null)",
                     "GetWindowLongW(window 2, -20)", "SetWindowLongW(window 2, -20, 0x2800A8)"}));
}

TEST_F(RebuildTest, TheOldWindowStaysUnderTheNewOne)
{
    HWND left = library.Create();
    Choose(ChooseGDI);
    InputStroke();
    EXPECT_TRUE(IsWindowVisible(left));
    // From the top down, the new one comes first.
    for (HWND window = GetTopWindow(nullptr); window != left; window = GetWindow(window, GW_HWNDNEXT)) {
        ASSERT_NE(window, nullptr);
        if (window == library.GetWindowHandle()) {
            return;
        }
    }
    FAIL() << "the window that was left lies above the new one";
}

TEST_F(RebuildTest, NoQuitMessageIsPosted)
{
    library.Create();
    Choose(ChooseGDI);
    InputStroke();
    EXPECT_FALSE(PumpMessages());
}

TEST_F(RebuildTest, ItsSamplesAreDroppedAndTheNextOnesDrawn)
{
    library.Create();
    Choose(ChooseGDI);
    InputStroke();
    Paint();
    EXPECT_NE(ScreenAtStroke(), Ink);
    InputStroke();
    Paint();
    EXPECT_EQ(ScreenAtStroke(), Ink);
}

TEST_F(RebuildTest, InkOfTheOldWindowIsGoneFromTheScreen)
{
    const Backdrop below(WholeScreen, Green);
    HWND left = CreateWithGDI();
    InputStroke();
    Paint();
    ASSERT_EQ(ScreenAtStroke(), Ink);
    Choose(ChooseDirect2D);
    Choose(ChooseGDI);
    InputStroke();
    Paint();
    SettleScreen();
    EXPECT_TRUE(IsWindow(left));
    EXPECT_EQ(TakePicture(WholeScreen).Count(Green), 1024U * 768U);
}

TEST_F(RebuildTest, TheRecordSurvives)
{
    library.Create();
    LM_Params params = Params();
    params.reserved0 = 9;
    params.inkDecayTime = 777;
    params.inkColor = 0x00ABCDEF;
    params.useOffset = 1;
    params.reserved31 = 5;
    SetParams(params);
    Choose(ChooseGDI);
    InputStroke();
    for (int i = 0; i < 2; ++i) { // both records: input hands the Core's to the engine
        const LM_Params after = Params();
        EXPECT_EQ(std::memcmp(&after, &params, sizeof(params)), 0);
        InputStroke();
    }
}

TEST_F(RebuildTest, APickedColourSurvives)
{
    constexpr std::uint32_t ScreenColour = 0x00123456;
    calls.Answer<"GetPixel">(GetPixel, [](HDC, int, int) { return COLORREF{ScreenColour}; });
    CreateWithGDI();
    SetField(&LM_Params::colorPicker, 1);
    InputStroke();
    Paint();
    ASSERT_EQ(Params().inkColor, ScreenColour);
    Choose(ChooseDirect2D);
    InputStroke();
    InputStroke();
    EXPECT_EQ(Params().inkColor, ScreenColour);
    EXPECT_EQ(Params().colorPicker, 0);
}

TEST_F(RebuildTest, WithoutAClassThereIsNoWindowAndNothingBreaks)
{
    HWND left = library.Create();
    Choose(ChooseGDI);
    RecordInvalidations();
    calls.Answer<"RegisterClassExW">(RegisterClassExW, [](const WNDCLASSEXW*) { return ATOM{0}; });
    InputStroke();
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    calls.Take();
    InputStroke();
    InputStroke();
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_EQ(Params().inkDecayTime, 100U);
    SendMessageW(left, WM_TIMER, 12345, 0);
    PaintAgain(left);
    library.Destroy();
    EXPECT_TRUE(IsWindow(left));
}

TEST_F(RebuildTest, AfterAFailedRebuildANewInstanceWorks)
{
    library.Create();
    Choose(ChooseGDI);
    {
        const Hook<"RegisterClassExW", decltype(RegisterClassExW)> refused(
            library.Module(), [](const WNDCLASSEXW*) { return ATOM{0}; });
        InputStroke();
    }
    EXPECT_NE(library.Create(), nullptr);
    InputStroke();
    Paint();
    EXPECT_EQ(ScreenAtStroke(), Ink);
}

} // namespace zq::LM::test
