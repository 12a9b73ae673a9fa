// When the overlay asks for a repaint, and when ticks wipe the last ink.
#include "support/library/window_test.h"

namespace zq::LM::test {

namespace {

constexpr RECT StrokePlace = {280, 140, 380, 180};

} // namespace

class FrameCycleTest : public WindowTest {
protected:
    void CreateQuiet()
    {
        CreateWithGDI();
        Paint();
        RecordInvalidations();
    }

    // A stroke that is on the screen and that a tick has counted.
    void ShowStroke()
    {
        InputStroke();
        Paint();
        Tick();
        calls.Take();
    }

    std::size_t InkPixels() const { return TakePicture(StrokePlace).Count(Ink); }
};

TEST_F(FrameCycleTest, InputRepaintsOnceWithoutErasing)
{
    CreateQuiet();
    InputStroke();
    EXPECT_EQ(calls.Take(), Lines{"InvalidateRect(window 1, null, 0)"});
    EXPECT_TRUE(IsInvalid());
}

TEST_F(FrameCycleTest, InputOfNoSamplesRepaintsToo)
{
    CreateQuiet();
    InputNothing();
    EXPECT_EQ(calls.Take(), Lines{"InvalidateRect(window 1, null, 0)"});
}

TEST_F(FrameCycleTest, InputOfANullArrayRepaintsNothing)
{
    CreateQuiet();
    library.InputPenDataArray(nullptr, 2);
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_FALSE(IsInvalid());
}

TEST_F(FrameCycleTest, TicksDoNotRepaintWhileInkLives)
{
    CreateQuiet();
    ShowStroke();
    clock.Advance(50);
    Tick();
    clock.Advance(49);
    Tick();
    EXPECT_EQ(Invalidations(), 0U);
    EXPECT_FALSE(IsInvalid());
}

TEST_F(FrameCycleTest, TheLastInkIsWipedByExactlyOneRepaint)
{
    CreateQuiet();
    ShowStroke();
    clock.Advance(100);
    Tick();
    EXPECT_EQ(calls.Take(), Lines{"InvalidateRect(window 1, null, 0)"});
    Tick();
    Paint();
    Tick();
    clock.Advance(1000);
    Tick();
    EXPECT_EQ(calls.Take(), Lines{});
}

TEST_F(FrameCycleTest, TheWipeIsSeenOnTheScreen)
{
    const Backdrop below({250, 100, 450, 250}, Green);
    CreateQuiet();
    ShowStroke();
    ASSERT_GT(InkPixels(), 0U);
    clock.Advance(100);
    Tick();
    Paint();
    EXPECT_EQ(InkPixels(), 0U);
}

TEST_F(FrameCycleTest, InkThatAFrameDroppedIsStillWipedByOneRepaint)
{
    CreateQuiet();
    ShowStroke();
    clock.Advance(100);
    PaintAgain(library.GetWindowHandle());
    Tick();
    Tick();
    EXPECT_EQ(Invalidations(), 1U);
}

TEST_F(FrameCycleTest, OnlyTheLastOfSeveralSamplesRepaints)
{
    CreateQuiet();
    InputStroke();
    clock.Advance(60);
    Input({Sample(160, 100)});
    Paint();
    Tick();
    calls.Take();
    clock.Advance(60); // the first two are too old now
    Tick();
    EXPECT_EQ(Invalidations(), 0U);
    clock.Advance(60);
    Tick();
    EXPECT_EQ(Invalidations(), 1U);
}

TEST_F(FrameCycleTest, TheCountOfLiveSamplesOutlivesTheInstance)
{
    CreateQuiet();
    ShowStroke();
    DestroyAndForget();
    library.Create();
    Paint();
    calls.Take();
    Tick();
    EXPECT_EQ(Invalidations(), 1U);
    Tick();
    EXPECT_EQ(Invalidations(), 1U);
}

TEST_F(FrameCycleTest, ATickBeforeTheFirstFrameCountsNoPendingSamples)
{
    CreateQuiet();
    InputStroke();
    calls.Take();
    Tick(); // ages the live samples, of which there are none
    DestroyAndForget();
    library.Create();
    Paint();
    calls.Take();
    Tick();
    EXPECT_EQ(Invalidations(), 0U);
}

TEST_F(FrameCycleTest, PendingSamplesSurviveTheWipeOfOlderInk)
{
    const Backdrop below({250, 100, 450, 250}, Green);
    CreateQuiet();
    ShowStroke();
    clock.Advance(99);
    InputStroke();
    clock.Advance(1);
    Tick();
    Paint();
    EXPECT_GT(InkPixels(), 0U);
}

TEST_F(FrameCycleTest, AShortLivedStrokeThatATickSawIsWiped)
{
    CreateQuiet();
    SetField(&LM_Params::inkDecayTime, 30);
    InputStroke();
    Paint();
    calls.Take();
    clock.Advance(20);
    Tick();
    EXPECT_EQ(Invalidations(), 0U);
    clock.Advance(50);
    Tick();
    EXPECT_EQ(Invalidations(), 1U);
}

TEST_F(FrameCycleTest, AShortLivedStrokeThatNoTickSawStaysUntilTheNextInput)
{
    const Backdrop below({250, 100, 450, 250}, Green);
    CreateQuiet();
    SetField(&LM_Params::inkDecayTime, 30);
    InputStroke();
    Paint();
    calls.Take();
    clock.Advance(40);
    Tick();
    clock.Advance(50);
    Tick();
    EXPECT_EQ(Invalidations(), 0U);
    Paint();
    EXPECT_GT(InkPixels(), 0U);
    InputAndPaint({Sample(300, 300)});
    EXPECT_EQ(Invalidations(), 1U);
    EXPECT_EQ(InkPixels(), 0U);
}

} // namespace zq::LM::test
