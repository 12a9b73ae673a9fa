// Nothing of a stroke stays on the screen once its life is over, whatever the options are.
#include "support/library/ink_on_screen.h"

#include "support/hook/import_hook.h"

namespace zq::LM::test {

namespace {

class GhostInk : public OpaqueInkOnScreen {
protected:
    static constexpr DWORD TickMilliseconds = 50;
    static constexpr RECT Part = {20, 20, 180, 180}; // all that is drawn, with the offset and without

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
    std::size_t LetLifePass()
    {
        invalidations.Forget();
        for (DWORD passed = 0; passed < params.inkDecayTime + 2 * TickMilliseconds;
             passed += TickMilliseconds) {
            clock.Advance(TickMilliseconds);
            Tick();
        }
        return invalidations.Count();
    }

    Hook<"InvalidateRect", decltype(InvalidateRect)> invalidations{library.Module()};
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
        EXPECT_EQ(LetLifePass(), SomethingIsDrawn() ? 1U : 0U);
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

} // namespace

} // namespace zq::LM::test
