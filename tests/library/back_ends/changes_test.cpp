// Changes among all back-ends in random order while the pen writes: what is shown, what survives and what
// stays behind.
#include "library/back_ends/gdi_traffic.h"
#include "support/library/back_end_test.h"
#include "support/library/leftovers.h"
#include "support/library/object_counts.h"

#include <cstring>
#include <random>

namespace zq::LM::test {

namespace {

class BackEndChanges : public BackEndTest, public testing::WithParamInterface<unsigned> {
protected:
    BackEndChanges() : BackEndTest(DirectCompositionBackEnd, {0, 0, 200, 160}) {} // small, for speed

    void BeforeCreation() override
    {
        traffic.emplace(library.Module());
        timersBefore = timer.Started().size();
    }

    std::size_t Random(std::size_t count) { return random() % count; }

    // Another one than the active one.
    std::size_t RandomOther()
    {
        return (active + 1 + Random(std::size(AllBackEnds) - 1)) % std::size(AllBackEnds);
    }

    // By commands alone, with frames and ticks in between.
    void Command(std::size_t next)
    {
        if (Random(4) == 0) { // by a detour
            Choose(AllBackEnds[Random(std::size(AllBackEnds))].command);
            Paint();
        }
        Choose(AllBackEnds[next].command);
        if (Random(2) == 0) {
            Paint();
            Tick();
        }
    }

    void ExpectRecord(const LM_Params& expected) const
    {
        const LM_Params now = Params();
        EXPECT_EQ(std::memcmp(&now, &expected, sizeof(now)), 0);
    }

    void ChangeOnce();
    void ExpectInkOfTheActiveOne();
    void ExpectOnlyWhatStaysOnPurpose();

    std::mt19937 random{GetParam()};
    std::optional<GdiTraffic> traffic;
    std::size_t timersBefore = 0;
    std::size_t active = 0;
    int changes = 0;
    int compositions = 1; // set-ups of DirectComposition
};

void BackEndChanges::ChangeOnce()
{
    params.inkColor = static_cast<std::uint32_t>(random()) & 0x007F7F7F; // never the window's below
    params.reserved31 = static_cast<std::uint8_t>(random());
    Apply();
    InputAndPaint({Sample(60, 100), Sample(90, 110)}); // the pen goes on touching
    const HWND before = library.GetWindowHandle();
    const std::size_t next = RandomOther();
    Command(next);
    EXPECT_EQ(library.GetWindowHandle(), before);

    Input({Sample(100, 120)});
    active = next;
    ++changes;
    compositions += AllBackEnds[active].command == ChooseDirectComposition ? 1 : 0;
    ASSERT_NE(library.GetWindowHandle(), before);
    EXPECT_TRUE(IsWindow(before));
    Paint();
    EXPECT_TRUE(ShowsNothing());
    ExpectRecord(params);
}

void BackEndChanges::ExpectInkOfTheActiveOne()
{
    graphics->Take();
    InputAndPaint({Sample(110, 130), Sample(170, 130)});
    EXPECT_EQ(Look({0, 0, 200, 160}).At(140, 130), params.inkColor);
    EXPECT_TRUE(DrewAllFrames(AllBackEnds[active]));
    ExpectRecord(params);
}

void BackEndChanges::ExpectOnlyWhatStaysOnPurpose()
{
    const bool composes = AllBackEnds[active].command == ChooseDirectComposition;
    const auto windows = static_cast<std::size_t>(changes) + 1;
    EXPECT_EQ(OverlayWindows().size(), windows);
    EXPECT_EQ(traffic->WindowContexts(), windows);
    EXPECT_EQ(traffic->MemoryContexts(), composes ? 0U : 1U);
    EXPECT_EQ(traffic->Objects(), composes ? 0U : 1U); // the bitmap
    EXPECT_EQ(timer.Started().size(), timersBefore + windows);
    EXPECT_EQ(timer.Killed().size(), windows - 1);
    // The second device of a set-up lives with its chain.
    EXPECT_EQ(graphics->Living()["CompositionDevice"], compositions + (composes ? 1 : 0));
    EXPECT_EQ(graphics->Living()["SwapChain"], composes ? 1 : 0);
}

TEST_P(BackEndChanges, ShowTheActiveOneKeepTheRecordAndLeaveWhatStaysOnPurpose)
{
    constexpr int Changes = 20;
    for (int i = 0; i < Changes; ++i) {
        SCOPED_TRACE(i);
        ChangeOnce();
        ExpectInkOfTheActiveOne();
        ExpectOnlyWhatStaysOnPurpose();
        if (HasFailure()) {
            return;
        }
    }
    DestroyAndForget();
    SettleScreen();
    EXPECT_EQ(OverlayWindows().size(), static_cast<std::size_t>(Changes));
    EXPECT_EQ(traffic->MemoryContexts(), 0U);
    EXPECT_EQ(traffic->Objects(), 0U);
    ExpectOnlyDevicesLeft(*graphics, compositions);
    EXPECT_TRUE(ShowsNothing());
}

INSTANTIATE_TEST_SUITE_P(Seeds, BackEndChanges, testing::Range(1U, 6U)); // 100 changes in all

} // namespace

} // namespace zq::LM::test
