// Nothing of a stroke stays on the screen once its life is over, whatever the options are.
#include "ink_on_screen.h"

#include "support/import_patch.h"

namespace zq::LM::test {

namespace {

int g_invalidations = 0;
decltype(&InvalidateRect) g_systemInvalidateRect = nullptr;

BOOL WINAPI CountInvalidateRect(HWND window, const RECT* rectangle, BOOL erase)
{
    ++g_invalidations;
    return g_systemInvalidateRect(window, rectangle, erase);
}

class GhostInk : public OpaqueInkOnScreen {
protected:
    static constexpr DWORD TickMilliseconds = 50;
    static constexpr RECT Part = {20, 20, 180, 180}; // all that is drawn, with the offset and without

    GhostInk()
    {
        g_systemInvalidateRect = reinterpret_cast<decltype(&InvalidateRect)>(invalidate.Original());
    }

    // The six options that change what is drawn, one bit each.
    void Choose(unsigned options)
    {
        params.line = options & 1;
        params.outline = (options >> 1) & 1;
        params.cursor = (options >> 2) & 1;
        params.usePressure = (options >> 3) & 1;
        params.useOffset = (options >> 4) & 1;
        params.zebraMode = (options >> 5) & 1;
        Apply();
    }

    bool SomethingIsDrawn() const { return params.line != 0 || params.outline != 0 || params.cursor != 0; }

    // A stroke that arrives in two batches and ends with the pen hovering.
    void Write()
    {
        InputAndPaint({Sample(60, 100), Sample(90, 120, 20'000)});
        clock.Advance(7);
        InputAndPaint({Sample(120, 90, 9'000), Sample(140, 140, 3'000), Sample(140, 141, 0)});
    }

    // Ticks until the last sample's life is over, and two more; how often a repaint was asked for.
    int LetLifePass()
    {
        g_invalidations = 0;
        for (DWORD passed = 0; passed < params.inkDecayTime + 2 * TickMilliseconds;
             passed += TickMilliseconds) {
            clock.Advance(TickMilliseconds);
            Tick();
        }
        return g_invalidations;
    }

    ImportPatch invalidate{library.Module(), "USER32.dll", "InvalidateRect", AsAddress(CountInvalidateRect)};
};

class GhostInkOfLife : public GhostInk, public testing::WithParamInterface<DWORD> {};

TEST_P(GhostInkOfLife, StaysNowhereWhateverTheOptions)
{
    params.inkDecayTime = GetParam();
    params.brushSize = 14;
    const Picture before = Look(Part);
    for (unsigned options = 0; options < 64; ++options) {
        SCOPED_TRACE(options);
        Choose(options);
        Write();
        ASSERT_EQ(Look(Part).Differences(before) != 0, SomethingIsDrawn());
        EXPECT_EQ(LetLifePass(), SomethingIsDrawn() ? 1 : 0);
        Paint();
        EXPECT_FALSE(IsInvalid());
        const Picture after = Look(Part);
        ASSERT_EQ(after.Differences(before), 0U) << after.Print(Green, Part);
    }
}

INSTANTIATE_TEST_SUITE_P(Lives, GhostInkOfLife, testing::Values(100, 150, 1000));

TEST_F(GhostInk, StaysNowhereOnTheWholeScreen)
{
    const Picture before = TakePicture({0, 0, 1024, 768});
    params.outline = 1;
    params.cursor = 1;
    Apply();
    Write();
    LetLifePass();
    Paint();
    EXPECT_EQ(TakePicture({0, 0, 1024, 768}).Differences(before), 0U);
}

TEST_F(GhostInk, IsThereUntilTheLastSamplesLifeIsOver)
{
    params.inkDecayTime = 150;
    Apply();
    Stroke(60, 140, 100);
    g_invalidations = 0;
    clock.Advance(50);
    Tick();
    clock.Advance(50);
    Tick();
    EXPECT_EQ(g_invalidations, 0);
    EXPECT_EQ(Look().At(100, 100), Red);
    clock.Advance(50);
    Tick();
    EXPECT_EQ(g_invalidations, 1);
    Paint();
    EXPECT_EQ(Look().At(100, 100), Green);
}

// Only a tick that saw ink lets a later one notice its end.
TEST_F(GhostInk, OfALifeThatNoTickSeesStaysUntilTheNextInput)
{
    params.inkDecayTime = 30;
    Apply();
    Stroke(60, 140, 100);
    g_invalidations = 0;
    for (int i = 0; i < 3; ++i) {
        clock.Advance(TickMilliseconds);
        Tick();
    }
    EXPECT_EQ(g_invalidations, 0);
    Paint();
    EXPECT_EQ(Look().At(100, 100), Red);
    InputAndPaint({Sample(150, 150)});
    EXPECT_EQ(Look(Part).Count(Green), 160U * 160U);
}

TEST_F(GhostInk, OfAShortLifeThatATickDidSeeIsWiped)
{
    params.inkDecayTime = 30;
    Apply();
    Stroke(60, 140, 100);
    clock.Advance(10);
    Tick();
    g_invalidations = 0;
    clock.Advance(TickMilliseconds);
    Tick();
    EXPECT_EQ(g_invalidations, 1);
    Paint();
    EXPECT_EQ(Look(Part).Count(Green), 160U * 160U);
}

} // namespace

} // namespace zq::LM::test
