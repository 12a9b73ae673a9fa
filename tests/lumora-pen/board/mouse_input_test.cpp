// The Board's way from the mouse to strokes.
#include "board_test.h"

namespace lumora_pen::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class BoardMouse : public BoardTest {
protected:
    BoardMouse() { board.Show(nullptr); }

    Hook<"GetMessageExtraInfo", decltype(GetMessageExtraInfo)> extra{program};
};

TEST_F(BoardMouse, WritesFromButtonToButton)
{
    SendMouse(WM_MOUSEMOVE, 90, 50, false);
    EXPECT_THAT(taken, IsEmpty());
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    EXPECT_EQ(GetCapture(), board.Window());
    SendMouse(WM_MOUSEMOVE, 110, 51);
    SendMouse(WM_LBUTTONUP, 120, 52, false);
    ASSERT_THAT(taken, SizeIs(3));
    EXPECT_EQ(taken[0].source, Mouse);
    EXPECT_THAT(PlacesOf(taken[0]), ElementsAre(Place(100, 50)));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(110, 51)));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(FullPressure));
    EXPECT_THAT(PlacesOf(taken[2]), ElementsAre(Place(120, 52)));
    EXPECT_THAT(PressuresOf(taken[2]), ElementsAre(0));
    EXPECT_EQ(GetCapture(), nullptr);
    for (const InputBatch& batch : taken) {
        EXPECT_FALSE(batch.isCancelled);
    }
}

TEST_F(BoardMouse, IsWhereItIsOnAScreenThatBeginsLeftOfTheFirstMonitor)
{
    board.Hide();
    screen = {-1280, -100, 1920, 1080};
    board.Show(nullptr);
    SendMouse(WM_LBUTTONDOWN, -1000, -50);
    EXPECT_THAT(PlacesOf(taken[0]), ElementsAre(Place(-1000, -50)));
}

TEST_F(BoardMouse, ThatTheSystemMakesOfAPenIsNotTakenTwice)
{
    for (const LPARAM mark : {0xFF515700, 0xFF51577F, 0xFF5157FF}) {
        extra.Answer([mark] { return mark; });
        EXPECT_EQ(SendMouse(WM_LBUTTONDOWN, 100, 50), 0);
        SendMouse(WM_LBUTTONUP, 100, 50, false);
    }
    EXPECT_THAT(taken, IsEmpty());
    extra.Answer([] { return LPARAM{0xFF515600}; }); // somebody else's mark
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    EXPECT_THAT(taken, SizeIs(1));
}

TEST_F(BoardMouse, LostCaptureCancelsItsStroke)
{
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    ReleaseCapture();
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_TRUE(taken[1].isCancelled);
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    SendMouse(WM_MOUSEMOVE, 110, 50);
    SendMouse(WM_LBUTTONUP, 110, 50, false);
    EXPECT_THAT(taken, SizeIs(2));
}

TEST_F(BoardMouse, WhoseButtonCameUpUnseenEndsItsStroke)
{
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    SendMouse(WM_MOUSEMOVE, 110, 50, false);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PressuresOf(taken[1]), ElementsAre(0));
    EXPECT_FALSE(taken[1].isCancelled);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(BoardMouse, HistoryIsUsedWhereThereIsOne)
{
    board.UseMouseHistory([](const InputSample& newest) {
        InputSample before = newest;
        before.x -= 5;
        return std::vector<InputSample>{before, newest};
    });
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    SendMouse(WM_MOUSEMOVE, 110, 50);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_THAT(PlacesOf(taken[0]), ElementsAre(Place(100, 50)));
    EXPECT_THAT(PlacesOf(taken[1]), ElementsAre(Place(105, 50), Place(110, 50)));
}

} // namespace
} // namespace lumora_pen::test
