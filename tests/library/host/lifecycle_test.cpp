// The life of the instance and its window: created, replaced, destroyed, and what outlives it.
#include "support/hook/import_hook.h"
#include "support/library/overlay_test.h"

namespace zq::LM {
namespace {

using test::Hook;
using test::OverlayTest;
using test::Sample;

class Lifecycle : public OverlayTest {
protected:
    Hook<"PostQuitMessage", decltype(PostQuitMessage)> quits{library.Module()};
    Hook<"DestroyWindow", decltype(DestroyWindow)> destroyed{library.Module()};
    Hook<"InvalidateRect", decltype(InvalidateRect)> invalidations{library.Module()};
};

TEST_F(Lifecycle, CreatingGivesAVisibleWindowAndNoQuitMessage)
{
    const HWND window = library.Create();
    EXPECT_TRUE(IsWindow(window));
    EXPECT_TRUE(IsWindowVisible(window));
    EXPECT_FALSE(test::PumpMessages());
}

TEST_F(Lifecycle, CreatingTwiceGivesTwoHandlesAndTheFirstWindowIsGone)
{
    const HWND first = library.Create();
    const HWND second = library.Create();
    ASSERT_NE(first, nullptr);
    ASSERT_NE(second, nullptr);
    EXPECT_NE(first, second);
    EXPECT_FALSE(IsWindow(first));
    EXPECT_TRUE(IsWindow(second));
    EXPECT_EQ(library.GetWindowHandle(), second);
}

TEST_F(Lifecycle, CreatingTwicePostsOneQuitMessage)
{
    library.Create();
    EXPECT_EQ(quits.Count(), 0U);
    library.Create();
    EXPECT_EQ(quits.Count(), 1U);
    EXPECT_TRUE(test::PumpMessages());
    EXPECT_FALSE(test::PumpMessages());
}

TEST_F(Lifecycle, AReplacedInstanceLeavesTheNewOneInWorkingOrder)
{
    library.Create();
    library.Create();
    test::PumpMessages();
    ASSERT_FALSE(IsInvalid());
    Input({Sample(100, 100)});
    EXPECT_TRUE(IsInvalid());
}

TEST_F(Lifecycle, DestroyingEndsTheWindowAndPostsOneQuitMessage)
{
    const HWND window = library.Create();
    library.Destroy();
    EXPECT_FALSE(IsWindow(window));
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    EXPECT_EQ(quits.Count(), 1U);
    EXPECT_TRUE(test::PumpMessages());
    EXPECT_FALSE(test::PumpMessages());
}

TEST_F(Lifecycle, DestroyingTwiceDoesNothingTheSecondTime)
{
    library.Create();
    library.Destroy();
    test::PumpMessages();
    library.Destroy();
    EXPECT_EQ(destroyed.Count(), 1U);
    EXPECT_EQ(quits.Count(), 1U);
    EXPECT_FALSE(test::PumpMessages());
}

TEST_F(Lifecycle, DestroyingWithoutAnInstancePostsNothing)
{
    library.Destroy();
    EXPECT_EQ(destroyed.Count(), 0U);
    EXPECT_FALSE(test::PumpMessages());
}

TEST_F(Lifecycle, AnInstanceCanFollowADestroyedOneAnyNumberOfTimes)
{
    HWND before = nullptr;
    for (int i = 0; i < 5; ++i) {
        const HWND window = library.Create();
        ASSERT_NE(window, nullptr);
        EXPECT_NE(window, before);
        InputAndPaint({Sample(100, 100), Sample(120, 110)});
        DestroyAndForget();
        before = window;
    }
    EXPECT_EQ(quits.Count(), 5U);
}

TEST_F(Lifecycle, AWindowThatTheHostDestroyedHasNoHandleAnyMore)
{
    const HWND window = library.Create();
    DestroyWindow(window);
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    EXPECT_EQ(quits.Count(), 1U);
}

TEST_F(Lifecycle, FeedingAfterTheHostDestroyedTheWindowIsHarmless)
{
    library.SetDebugLevel(2);
    DestroyWindow(library.Create());
    invalidations.Forget();
    debugger.Clear();
    const LM_Params params = Params();
    Input({Sample(100, 100), Sample(120, 120)});
    library.InputPenDataArray(nullptr, 0);
    SetParams(params);
    EXPECT_EQ(invalidations.Count(), 0U); // a null window would be the whole desktop
    EXPECT_THAT(debugger.Texts(), ::testing::Not(::testing::Contains("InvalidateRect is called.\n")));
}

TEST_F(Lifecycle, TheRecordWorksOnAfterTheHostDestroyedTheWindow)
{
    DestroyWindow(library.Create());
    SetField(&LM_Params::brushSize, 33);
    EXPECT_EQ(Params().brushSize, 33U);
}

TEST_F(Lifecycle, DestroyingAfterTheHostDestroyedTheWindowTouchesNoWindow)
{
    DestroyWindow(library.Create());
    library.Destroy();
    EXPECT_EQ(destroyed.Count(), 0U);
    EXPECT_EQ(quits.Count(), 1U);
}

TEST_F(Lifecycle, CreatingAfterTheHostDestroyedTheWindowWorks)
{
    DestroyWindow(library.Create());
    test::PumpMessages();
    const HWND window = library.Create();
    EXPECT_TRUE(IsWindow(window));
    EXPECT_EQ(destroyed.Count(), 0U);
    EXPECT_EQ(quits.Count(), 1U);
}

} // namespace
} // namespace zq::LM
