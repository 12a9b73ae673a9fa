// The timer that ages ink: which id it takes, and when it is given back.
#include "support/library/window_test.h"

namespace zq::LM::test {

using TimerTest = WindowTest;

TEST_F(TimerTest, TakesTheFirstIdAtAPeriodOfFiftyMilliseconds)
{
    HWND window = library.Create();
    ASSERT_EQ(timer.Started().size(), 1U);
    EXPECT_EQ(timer.Started()[0].window, window);
    EXPECT_EQ(timer.Started()[0].id, 12345U);
    EXPECT_EQ(timer.Started()[0].period, 50U);
}

TEST_F(TimerTest, TakesTheNextIdWhenOneIsTaken)
{
    const TimerStandIn refusing(library.Module(), 1);
    library.Create();
    ASSERT_EQ(refusing.Started().size(), 2U);
    EXPECT_EQ(refusing.Started()[1].id, 12346U);
    Choose(ChooseGDI);
    InputStroke();
    EXPECT_EQ(refusing.Killed(), std::vector<UINT_PTR>{12346});
}

TEST_F(TimerTest, TakesTheVeryLastIdWhenAllOthersAreTaken)
{
    const TimerStandIn refusing(library.Module(), 2654);
    library.Create();
    ASSERT_EQ(refusing.Started().size(), 2655U);
    EXPECT_EQ(refusing.Started().back().id, 14999U);
    Choose(ChooseGDI);
    InputStroke();
    EXPECT_EQ(refusing.Killed(), std::vector<UINT_PTR>{14999});
}

TEST_F(TimerTest, GivesUpAfterTheLastIdAndHasNoTimerToEnd)
{
    const TimerStandIn refusing(library.Module(), 2655);
    EXPECT_NE(library.Create(), nullptr);
    ASSERT_EQ(refusing.Started().size(), 2655U);
    for (std::size_t i = 0; i < 2655; ++i) {
        ASSERT_EQ(refusing.Started()[i].id, 12345U + i);
    }
    Choose(ChooseGDI);
    InputStroke(); // ends the old window's Core
    EXPECT_EQ(refusing.Killed(), std::vector<UINT_PTR>{});
}

TEST_F(TimerTest, ARebuildEndsTheOldWindowsTimerAndStartsOneForTheNew)
{
    library.Create();
    Choose(ChooseGDI);
    InputStroke();
    EXPECT_EQ(timer.Killed(), std::vector<UINT_PTR>{12345});
    ASSERT_EQ(timer.Started().size(), 2U);
    EXPECT_EQ(timer.Started()[1].window, library.GetWindowHandle());
    EXPECT_EQ(timer.Started()[1].id, 12345U);
}

TEST_F(TimerTest, ADestroyedWindowTakesItsTimerAlong)
{
    library.Create();
    DestroyAndForget();
    EXPECT_EQ(timer.Killed(), std::vector<UINT_PTR>{});
}

} // namespace zq::LM::test
