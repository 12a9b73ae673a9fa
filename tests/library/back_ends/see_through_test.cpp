// What must never be seen of an overlay: anything but its ink, whatever fails and whichever back-end is
// chosen.
#include "support/hook/hooks.h"
#include "support/library/back_end_test.h"
#include "support/row_name.h"

namespace zq::LM::test {

namespace {

struct Change {
    BackEnd from;
    WPARAM to;
    const char* name;
};

// From the command until the pen input that rebuilds the overlay.
class AfterTheCommand : public BackEndTest, public testing::WithParamInterface<Change> {
protected:
    AfterTheCommand() : BackEndTest(GetParam().from) {}

    // Ink may be there or not.
    bool ShowsOnlyInk() const
    {
        const Picture picture = Look();
        return picture.Count(Green) + picture.Count(Red) == static_cast<std::size_t>(All.right * All.bottom);
    }
};

TEST_P(AfterTheCommand, OnlyInkIsSeen)
{
    Stroke(100, 200, 100);
    ASSERT_EQ(Look().At(150, 100), Red);
    Choose(GetParam().to);
    EXPECT_TRUE(ShowsOnlyInk());
    Paint();
    EXPECT_TRUE(ShowsOnlyInk());
    shell.Move({0, 0, All.right - 40, All.bottom - 40});
    InvalidateRect(library.GetWindowHandle(), nullptr, FALSE);
    Paint();
    EXPECT_TRUE(ShowsOnlyInk());
    Tick();
    clock.Advance(params.inkDecayTime);
    Tick();
    Paint();
    EXPECT_TRUE(ShowsOnlyInk());
    Refresh(); // rebuilds
    EXPECT_TRUE(ShowsNothing());
    Stroke(100, 200, 100);
    EXPECT_EQ(Look().At(150, 100), Red);
}

INSTANTIATE_TEST_SUITE_P(
    Each, AfterTheCommand,
    testing::Values(Change{GDIBackEnd, ChooseDirect2D, "GDIToDirect2D"},
                    Change{GDIBackEnd, ChooseDirectComposition, "GDIToDirectComposition"},
                    Change{Direct2DBackEnd, ChooseGDI, "Direct2DToGDI"},
                    Change{Direct2DBackEnd, ChooseDirectComposition, "Direct2DToDirectComposition"},
                    Change{DirectCompositionBackEnd, ChooseGDI, "DirectCompositionToGDI"},
                    Change{DirectCompositionBackEnd, ChooseDirect2D, "DirectCompositionToDirect2D"}),
    RowName());

// Those that draw into memory, where what they draw into cannot be made.
class WithoutMemory : public BackEndTest, public testing::WithParamInterface<BackEnd> {
protected:
    WithoutMemory() : BackEndTest(GetParam()) {}

    void BeforeCreation() override
    {
        calls.Answer<"CreateCompatibleDC">(CreateCompatibleDC, [this](HDC dc) -> HDC {
            return givesContexts ? ::CreateCompatibleDC(dc) : nullptr;
        });
        calls.Answer<"CreateCompatibleBitmap">(
            CreateCompatibleBitmap, [this](HDC dc, int width, int height) -> HBITMAP {
                return givesBitmaps ? ::CreateCompatibleBitmap(dc, width, height) : nullptr;
            });
    }

    // Shows nothing for as long as there is none, and ink as soon as there is one again.
    void ExpectRecovery(bool& gives)
    {
        gives = false;
        library.Create();
        Apply();
        Paint();
        EXPECT_TRUE(ShowsNothing());
        Stroke(100, 200, 100);
        EXPECT_TRUE(ShowsNothing());
        gives = true;
        Stroke(100, 200, 150);
        EXPECT_EQ(Look().At(150, 150), Red);
        EXPECT_EQ(Look().At(150, 100), Red); // it had been kept
        EXPECT_EQ(Look().At(150, 300), Green);
    }

    bool givesContexts = true;
    bool givesBitmaps = true;
    Hooks calls{library.Module()};
};

TEST_P(WithoutMemory, WithoutABitmapNothingIsSeenUntilThereIsOne) { ExpectRecovery(givesBitmaps); }

TEST_P(WithoutMemory, WithoutADeviceContextNothingIsSeenUntilThereIsOne) { ExpectRecovery(givesContexts); }

INSTANTIATE_TEST_SUITE_P(Each, WithoutMemory, testing::Values(Direct2DBackEnd, GDIBackEnd), RowName());

// A shell that has no size for a while, as one that starts.
class ShellWithoutSize : public BackEndTest, public testing::WithParamInterface<BackEnd> {
protected:
    ShellWithoutSize() : BackEndTest(GetParam()) {}

    static constexpr RECT NoSize = {0, 0, 0, 0};

    // The display has no windows of no size: under Wine there may be one pixel of it.
    bool ShowsAPixelAtMost() const
    {
        return Look().Count(Green) + 1 >= static_cast<std::size_t>(All.right * All.bottom);
    }

    void ExpectInkOnceItHasOneAgain()
    {
        shell.Move(AtOrigin);
        Tick();
        Apply();
        Stroke(100, 200, 100);
        EXPECT_EQ(Look().At(150, 100), Red);
        EXPECT_EQ(Look().At(150, 300), Green);
    }
};

TEST_P(ShellWithoutSize, FreezesALivingOverlayNoLongerThanThat)
{
    shell.Move(NoSize);
    Stroke(100, 200, 100);
    Tick();
    EXPECT_TRUE(ShowsAPixelAtMost());
    ExpectInkOnceItHasOneAgain();
}

TEST_P(ShellWithoutSize, AtTheCreationFreezesTheOverlayNoLongerThanThat)
{
    shell.Move(NoSize);
    library.Create();
    Apply();
    Stroke(100, 200, 100);
    Tick();
    EXPECT_TRUE(ShowsAPixelAtMost());
    ExpectInkOnceItHasOneAgain();
}

INSTANTIATE_TEST_SUITE_P(Each, ShellWithoutSize, testing::ValuesIn(AllBackEnds), RowName());

} // namespace

} // namespace zq::LM::test
