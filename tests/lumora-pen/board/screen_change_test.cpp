// The Board when monitors come, go, or change.
#include "board_test.h"

namespace lumora_pen::test {
namespace {

using testing::SizeIs;

class BoardOnAChangedScreen : public BoardTest, public testing::WithParamInterface<UINT> {};

INSTANTIATE_TEST_SUITE_P(Messages, BoardOnAChangedScreen, testing::Values(WM_DISPLAYCHANGE, WM_DPICHANGED));

TEST_P(BoardOnAChangedScreen, KeepsItsInkWhereItWas)
{
    board.Show(nullptr);
    DrawLine(100, 50, 200, 50);
    screen = {-1280, -100, 1920, 1080};
    Send(GetParam());
    ExpectWindowAt(screen);
    ExpectPart({0, 0, 3200, 1180});
    EXPECT_EQ(board.State(), BoardState::TakesInputAndInk);
    EXPECT_EQ(board.Canvas().Area(), screen);
    EXPECT_EQ(At(150, 50), RedInk);
    EXPECT_EQ(At(-1130, -50), DryCanvas::Ground);
    EXPECT_TRUE(DrawLine(-1000, -50, -900, -50));
    EXPECT_EQ(At(-950, -50), RedInk);
}

TEST_P(BoardOnAChangedScreen, WithoutMemoryTakesInputOnAllOfIt)
{
    board.Show(nullptr);
    screen = {-1280, 0, 1920, 1080};
    bitmaps.Fail(nullptr);
    Send(GetParam());
    ExpectWindowAt(screen);
    EXPECT_EQ(board.State(), BoardState::TakesInput);
    EXPECT_TRUE(IsWindowVisible(board.Window()));
}

TEST_P(BoardOnAChangedScreen, GoesOnWithTheStrokeInTheMaking)
{
    board.Show(nullptr);
    SendMouse(WM_LBUTTONDOWN, 100, 50);
    screen = {-1280, 0, 1920, 1080};
    Send(GetParam());
    SendMouse(WM_MOUSEMOVE, -200, 60);
    ASSERT_THAT(taken, SizeIs(2));
    EXPECT_EQ(taken[1].samples.back().x, -200);
    EXPECT_EQ(taken[1].samples.back().pressure, FullPressure);
}

class BoardOnASmallerScreen : public BoardTest {};

TEST_F(BoardOnASmallerScreen, KeepsTheInkThatIsLeftOnIt)
{
    screen = {-1280, 0, 1024, 768};
    board.Show(nullptr);
    DrawLine(-1000, 50, 200, 50);
    screen = {0, 0, 1024, 768};
    Send(WM_DISPLAYCHANGE);
    EXPECT_EQ(board.Canvas().Area(), screen);
    EXPECT_EQ(At(0, 50), RedInk);
    EXPECT_EQ(At(150, 50), RedInk);
}

} // namespace
} // namespace lumora_pen::test
