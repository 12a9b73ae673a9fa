// A frame clears and copies only what has changed, by a clip around the same calls; and when it does not.
#include "support/library/window_test.h"

#include "platform/win32/gdiplus_flat.h"

#include <optional>

namespace zq::LM::test {

namespace {

constexpr RECT AtOrigin = {0, 0, 640, 480};
constexpr const char* StrokesPart = "93, 93, 158, 108)"; // its ends, half its width, two pixels more

} // namespace

class ChangedPartTest : public WindowTest {
protected:
    void CreateQuiet(WPARAM backEnd)
    {
        calls.Record<"IntersectClipRect">(IntersectClipRect);
        calls.Record<"SelectClipRgn">(SelectClipRgn);
        calls.Record<"SetRectRgn">(SetRectRgn);
        calls.Record<"CreateCompatibleDC">(CreateCompatibleDC);
        calls.Record<"GetDC">(GetDC);
        calls.Record<"PatBlt">(PatBlt);
        calls.Record<"BitBlt">(BitBlt);
        Select(backEnd);
        library.Create();
        SetField(&LM_Params::cursor, std::uint8_t{0});
        Paint();
        PaintAgain(library.GetWindowHandle());
        calls.Take();
    }

    void CreateWithStroke()
    {
        CreateQuiet(ChooseGDI);
        InputStroke();
        PaintOnce();
        calls.Take();
    }

    // The tick before has seen it live.
    void LetInkAge()
    {
        Tick();
        clock.Advance(1000);
        Tick();
    }

    // Where the copies to the window were confined to.
    Lines CopiedParts() const { return Confined_("dc of window"); }
    Lines ClearedParts() const { return Confined_("memory dc"); }

    void ExpectNoClip() const
    {
        EXPECT_EQ(calls.Of("IntersectClipRect"), Lines{});
        EXPECT_EQ(calls.Of("SetRectRgn"), Lines{});
    }
    void ExpectWholeFramesAndStay(int count)
    {
        for (; count > 0; --count) {
            InputNothing();
            PaintOnce();
            EXPECT_EQ(calls.Count("BitBlt"), 1U);
            ExpectNoClip();
            calls.Take();
        }
    }
    void ExpectWholeFrames(int count)
    {
        ExpectWholeFramesAndStay(count);
        ExpectAConfinedFrame();
    }
    void ExpectAConfinedFrame()
    {
        InputNothing();
        PaintOnce();
        EXPECT_EQ(calls.Count("BitBlt"), 1U);
        EXPECT_EQ(CopiedParts().size(), 1U);
        calls.Take();
    }

private:
    Lines Confined_(const std::string& target) const
    {
        Lines parts;
        for (const std::string& call : calls.Of("IntersectClipRect")) {
            if (call.find(target) != std::string::npos) {
                parts.push_back(call.substr(call.find(", ") + 2));
            }
        }
        return parts;
    }
};

TEST_F(ChangedPartTest, ClearAndCopyHaveTheirClipsAndLinesHaveNone)
{
    CreateWithStroke();
    calls.Record<"GdipDrawLineI">(Gdiplus::DllExports::GdipDrawLineI);
    Input({Sample(150, 120)});
    calls.Take();
    PaintOnce();
    EXPECT_EQ(calls.Take(),
              (Lines{"GetDC(window 2)", "IntersectClipRect(memory dc, 93, 93, 158, 108)",
                     "PatBlt(memory dc, 0, 0, 640, 480, 0xF00021)", "SelectClipRgn(memory dc, null)",
                     "GdipDrawLineI(*, *, 100, 100, 150, 100)", "GdipDrawLineI(*, *, 150, 100, 150, 120)",
                     "IntersectClipRect(dc of window 2, 93, 93, 158, 128)",
                     "BitBlt(dc of window 2, 0, 0, 640, 480, memory dc, 0, 0, 0xCC0020)",
                     "SelectClipRgn(dc of window 2, null)"}));
}

TEST_F(ChangedPartTest, EmptyFrameTouchesNothing)
{
    CreateQuiet(ChooseGDI);
    InputNothing();
    PaintOnce();
    EXPECT_EQ(ClearedParts(), Lines{"0, 0, 0, 0)"});
    EXPECT_EQ(CopiedParts(), Lines{"0, 0, 0, 0)"});
}

TEST_F(ChangedPartTest, LastFrameErasesTheInkWhereItWas)
{
    CreateWithStroke();
    LetInkAge();
    PaintOnce();
    EXPECT_EQ(ClearedParts(), Lines{StrokesPart});
    EXPECT_EQ(CopiedParts(), Lines{StrokesPart});
}

TEST_F(ChangedPartTest, PartThatSomebodyElseWantsIsCopiedToo)
{
    CreateWithStroke();
    const RECT wanted = {300, 200, 400, 220};
    InvalidateRect(library.GetWindowHandle(), &wanted, FALSE);
    InputNothing();
    PaintOnce();
    EXPECT_EQ(ClearedParts(), Lines{StrokesPart});
    EXPECT_EQ(calls.Of("SetRectRgn"),
              (Lines{"SetRectRgn(*, " + std::string(StrokesPart), "SetRectRgn(*, 300, 200, 400, 220)"}));
}

TEST_F(ChangedPartTest, DistantInksAreTwoParts)
{
    CreateWithStroke();
    Input({Sample(160, 100, 0), Sample(500, 400), Sample(510, 400)});
    PaintOnce();
    EXPECT_EQ(calls.Of("SetRectRgn").size(), 2U);
    EXPECT_EQ(CopiedParts(), Lines{});
    calls.Record<"DeleteObject">(DeleteObject);
    calls.Take();
    InputNothing();
    PaintOnce();
    EXPECT_EQ(calls.Of("SetRectRgn").size(), 4U) << "cleared and copied";
    EXPECT_EQ(calls.Count("DeleteObject"), 5U) << "two regions each, and the brush";
}

// Then the frame is whole.
TEST_F(ChangedPartTest, RegionThatTheSystemRefusesMakesAWholeFrame)
{
    const Backdrop below(Desktop, Green);
    CreateWithStroke();
    Input({Sample(160, 100, 0), Sample(500, 400), Sample(510, 400)});
    PaintOnce();
    calls.Record<"CombineRgn">(CombineRgn).Fail(ERROR);
    LetInkAge();
    Paint();
    EXPECT_EQ(TakePicture(Desktop).Count(Green), 640U * 480U);
}

TEST_F(ChangedPartTest, PaintThatOnlySomebodyElseWantsCopiesHisPart)
{
    CreateQuiet(ChooseGDI);
    const RECT wanted = {300, 200, 400, 220};
    InvalidateRect(library.GetWindowHandle(), &wanted, FALSE);
    PaintOnce();
    EXPECT_EQ(CopiedParts(), Lines{"300, 200, 400, 220)"});
}

TEST_F(ChangedPartTest, WholeAfterTheWindowWasErased)
{
    CreateWithStroke();
    InputNothing();
    SendMessageW(library.GetWindowHandle(), WM_ERASEBKGND, 0, 0);
    PaintOnce();
    ExpectNoClip();
    calls.Take();
    ExpectAConfinedFrame();
}

// A clear reaches only as far as the window, so the bitmap of a smaller one keeps ink beyond it.
TEST_F(ChangedPartTest, WholeAfterAResize)
{
    CreateWithStroke();
    const auto resize = [this](int width) {
        SetWindowPos(library.GetWindowHandle(), nullptr, 0, 0, width, 480,
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    };
    resize(50);
    ExpectWholeFrames(1);
    resize(640);
    ExpectWholeFrames(1);
}

TEST_F(ChangedPartTest, WholeOnANewScreen)
{
    CreateWithStroke();
    shell.Move({100, 40, 900, 640});
    InputNothing();
    PaintOnce();
    ExpectNoClip();
}

TEST_F(ChangedPartTest, WholeAfterACopyThatFailed)
{
    CreateWithStroke();
    calls.Record<"BitBlt">(BitBlt).Fail(FALSE, 1, 1);
    InputNothing();
    PaintOnce();
    calls.Take();
    ExpectWholeFrames(1);
}

TEST_F(ChangedPartTest, WholeAfterAClearThatFailed)
{
    CreateWithStroke();
    calls.Record<"PatBlt">(PatBlt).Fail(FALSE, 1, 1);
    InputNothing();
    PaintOnce();
    EXPECT_EQ(CopiedParts(), Lines{});
    calls.Take();
    ExpectWholeFrames(1);
}

TEST_F(ChangedPartTest, WholeWithInformationAndOnceMoreAfterIt)
{
    CreateWithStroke();
    library.SetDebugLevel(1);
    ExpectWholeFramesAndStay(2);
    library.SetDebugLevel(0);
    ExpectWholeFrames(1);
}

TEST_F(ChangedPartTest, WholeWhileAnotherBackEndWaitsForItsWindow)
{
    CreateWithStroke();
    Choose(ChooseDirect2D);
    PaintOnce();
    ExpectNoClip();
    Choose(ChooseGDI);
    PaintOnce();
    ExpectNoClip();
}

TEST_F(ChangedPartTest, WholeWithACoordinateFarAway)
{
    CreateWithStroke();
    Input({Sample(16'384, 100)});
    PaintOnce();
    EXPECT_EQ(ClearedParts(), Lines{StrokesPart});
    EXPECT_EQ(CopiedParts(), Lines{});
    LetInkAge();
    calls.Take();
    ExpectWholeFrames(1);
}

TEST_F(ChangedPartTest, WholeWithAWidthBeyondEveryScreen)
{
    CreateWithStroke();
    SetField(&LM_Params::brushSize, 4'200U);
    Input({Sample(160, 100)});
    PaintOnce();
    EXPECT_EQ(CopiedParts(), Lines{});
    LetInkAge();
    calls.Take();
    ExpectWholeFrames(1);
}

TEST_F(ChangedPartTest, ClipThatTheSystemRefusesMakesAWholeFrame)
{
    const Backdrop below(Desktop, Green);
    CreateWithStroke();
    calls.Answer<"IntersectClipRect">(IntersectClipRect, [](HDC, int, int, int, int) { return ERROR; });
    LetInkAge();
    Paint();
    EXPECT_EQ(TakePicture(Desktop).Count(Green), 640U * 480U);
}

TEST_F(ChangedPartTest, ClipThatTheSystemKeepsGoesWithItsBitmap)
{
    CreateWithStroke();
    calls.Record<"SelectClipRgn">(SelectClipRgn).Fail(ERROR, 1, 1);
    InputNothing();
    PaintOnce();
    calls.Record<"CreateCompatibleBitmap">(CreateCompatibleBitmap);
    calls.Take();
    InputNothing();
    PaintOnce();
    EXPECT_EQ(calls.Count("CreateCompatibleBitmap"), 1U);
}

TEST_F(ChangedPartTest, ForDirect2DOnlyTheCopyIsConfined)
{
    shell.Move(AtOrigin);
    CreateQuiet(ChooseDirect2D);
    InputStroke();
    PaintOnce();
    EXPECT_EQ(ClearedParts(), Lines{});
    EXPECT_EQ(CopiedParts(), Lines{StrokesPart});
}

TEST_F(ChangedPartTest, ForDirect2DIsWholeWhereTheScreenBeginsElsewhere)
{
    CreateQuiet(ChooseDirect2D);
    InputStroke();
    PaintOnce();
    EXPECT_EQ(calls.Count("BitBlt"), 1U);
    ExpectNoClip();
}

TEST_F(ChangedPartTest, ForDirectCompositionThereIsNone)
{
    calls.Record<"IntersectClipRect">(IntersectClipRect);
    library.Create();
    InputStroke();
    PaintOnce();
    EXPECT_EQ(calls.Take(), Lines{});
}

} // namespace zq::LM::test
