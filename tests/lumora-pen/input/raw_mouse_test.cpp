// The mouse, which writes while the key is held.
#include "fake_input.h"

namespace lumora_pen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr ULONG MadeByPen = 0xFF515702;

class RawMouseTest : public InputTest {
protected:
    RawMouseTest()
    {
        mouse = {100, 100};
        input.SetMouse(true);
    }

    // The mouse has come this way, oldest first.
    void Move(const std::vector<POINT>& way)
    {
        for (const POINT& place : way) {
            mouseHistory.insert(mouseHistory.begin(), {place.x & 0xFFFF, place.y & 0xFFFF, ++now, 0});
        }
        mouse = way.back();
    }
};

TEST_F(RawMouseTest, WritesNothingWithoutTheKey)
{
    Move({{101, 100}, {102, 100}});
    SendMouse();
    EXPECT_THAT(batches, IsEmpty());
    EXPECT_EQ(history.Count(), 0U); // it is asked for only when somebody writes
}

TEST_F(RawMouseTest, AllPointsSinceTheLastMessageAreOneBatch)
{
    Move({{101, 100}});
    SendMouse();
    isHeld = true;
    Move({{105, 103}, {108, 109}});
    SendMouse();
    ASSERT_THAT(batches, SizeIs(1));
    EXPECT_EQ(batches[0].source, Mouse);
    EXPECT_THAT(Places(), ElementsAre(At(105, 103), At(108, 109)));
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, FullPressure));
}

TEST_F(RawMouseTest, StrokeDoesNotBeginWithOldPoints)
{
    isHeld = true;
    Move({{101, 100}});
    SendMouse();
    isHeld = false;
    Move({{150, 100}, {200, 100}});
    SendMouse();
    batches.clear();
    isHeld = true;
    Move({{201, 100}});
    SendMouse();
    EXPECT_THAT(Places(), ElementsAre(At(201, 100)));
}

TEST_F(RawMouseTest, ReleasedKeyEndsTheStrokeWhereItHasCome)
{
    isHeld = true;
    Move({{101, 100}});
    SendMouse();
    isHeld = false;
    Move({{300, 300}});
    SendMouse();
    EXPECT_THAT(Places(), ElementsAre(At(101, 100), At(101, 100)));
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 0));
    EXPECT_EQ(batches[1].samples[0].time, now);
    SendMouse();
    EXPECT_THAT(batches, SizeIs(2));
}

TEST_F(RawMouseTest, LookWithoutAMessageEndsTheStrokeToo)
{
    isHeld = true;
    Move({{101, 100}});
    SendMouse();
    input.LookAtMouse();
    EXPECT_THAT(batches, SizeIs(1));
    isHeld = false;
    input.LookAtMouse();
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 0));
    input.LookAtMouse();
    EXPECT_THAT(batches, SizeIs(2));
}

TEST_F(RawMouseTest, KeyWithoutAMovementIsNoStroke)
{
    isHeld = true;
    input.LookAtMouse();
    isHeld = false;
    input.LookAtMouse();
    EXPECT_THAT(batches, IsEmpty());
}

TEST_F(RawMouseTest, PlacesLeftOfTheFirstMonitorAreFound)
{
    isHeld = true;
    Move({{-5, -7}});
    SendMouse();
    EXPECT_THAT(Places(), ElementsAre(At(-5, -7)));
    EXPECT_EQ(askedFor.x, 0xFFFB);
    EXPECT_EQ(askedFor.y, 0xFFF9);
    EXPECT_EQ(askedFor.time, 0U);
}

TEST_F(RawMouseTest, WithoutAHistoryTheCursorServes)
{
    isHeld = true;
    history.Fail(-1);
    mouse = {-50, 60};
    SendMouse();
    SendMouse();
    EXPECT_THAT(Places(), ElementsAre(At(-50, 60)));
}

TEST_F(RawMouseTest, EmptyHistoryIsNone)
{
    isHeld = true;
    history.Fail(0);
    mouse = {-50, 60};
    SendMouse();
    EXPECT_THAT(Places(), ElementsAre(At(-50, 60)));
}

TEST_F(RawMouseTest, MorePointsThanWereAskedForAreNotBelieved)
{
    isHeld = true;
    Move({{101, 100}});
    history.Answer([this](UINT, MOUSEMOVEPOINT*, MOUSEMOVEPOINT* points, int, DWORD) {
        points[0] = mouseHistory[0];
        return 100000;
    });
    SendMouse();
    EXPECT_THAT(Places(), ElementsAre(At(101, 100)));
}

TEST_F(RawMouseTest, CursorOfAnotherDesktopWritesNothing)
{
    isHeld = true;
    Move({{101, 100}});
    cursor.Fail(FALSE);
    SendMouse();
    EXPECT_THAT(batches, IsEmpty());
}

TEST_F(RawMouseTest, KeyReleasedOnAnotherDesktopEndsTheStroke)
{
    isHeld = true;
    Move({{101, 100}});
    SendMouse();
    isHeld = false;
    cursor.Fail(FALSE);
    input.LookAtMouse();
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 0));
}

TEST_F(RawMouseTest, SwitchingOffEndsTheStroke)
{
    isHeld = true;
    Move({{101, 100}});
    SendMouse();
    input.SetMouse(false);
    EXPECT_THAT(Pressures(), ElementsAre(FullPressure, 0));
    Move({{102, 100}});
    SendMouse(); // one that was still on its way
    input.LookAtMouse();
    EXPECT_THAT(batches, SizeIs(2));
}

TEST_F(RawMouseTest, MouseThatAWritingPenMovesDoesNotWriteToo)
{
    input.SetPens(true);
    isHeld = true;
    Send({TouchReport(0, 0, 4095)});
    batches.clear();
    Move({{101, 100}});
    SendMouse(MadeByPen);
    EXPECT_THAT(batches, IsEmpty());
    Send({Report(0, 0, 0, 0)});
    batches.clear();
    Move({{102, 100}});
    SendMouse();
    EXPECT_THAT(Places(), ElementsAre(At(102, 100)));
}

TEST_F(RawMouseTest, PenThatCannotBeReadWritesAsAMouse)
{
    plugged[pen].hasTip = false;
    input.SetPens(true);
    isHeld = true;
    Send({TouchReport(0, 0, 4095)});
    Move({{101, 100}});
    SendMouse(MadeByPen);
    EXPECT_THAT(Places(), ElementsAre(At(101, 100)));
}

} // namespace
} // namespace lumora_pen
