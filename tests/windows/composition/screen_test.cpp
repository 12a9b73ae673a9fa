// What the user sees of the composed overlay.
#include "windows/composition/composition_test.h"

namespace zq::LM::test {

namespace {

constexpr COLORREF Green = RGB(0, 128, 0);

// The overlay lies at (200, 60), and so does ink.
class ScreenTest : public CompositionTest {
protected:
    ScreenTest() { library.Create(); }

    COLORREF ScreenAt(int x, int y) const { return TakePicture(Desktop).At(x, y); }

    Backdrop backdrop{Desktop, Green};
};

TEST_F(ScreenTest, EmptyOverlayIsSeenThrough)
{
    SettleScreen();
    EXPECT_EQ(TakePicture(Desktop).Count(Green), 640U * 480U);
}

TEST_F(ScreenTest, InkLiesAboveWhatIsBelow)
{
    InputAndPaint({Sample(100, 100), Sample(200, 100)});
    EXPECT_EQ(ScreenAt(350, 160), 0x00202020U);
    EXPECT_EQ(ScreenAt(350, 150), Green);
    EXPECT_EQ(ScreenAt(350, 170), Green);
}

TEST_F(ScreenTest, FadedInkIsSeenThroughAgain)
{
    InputAndPaint({Sample(100, 100), Sample(200, 100)});
    Tick(); // sees the ink alive
    clock.Advance(1000);
    Tick();
    Paint();
    EXPECT_EQ(TakePicture(Desktop).Count(Green), 640U * 480U);
}

TEST_F(ScreenTest, OverlayThatShrinksOnceItsInkHasFadedIsSeenThrough)
{
    InputAndPaint({Sample(100, 100), Sample(200, 100)});
    Tick();
    clock.Advance(1000);
    shell.Move({Desktop.left, Desktop.top, Desktop.left + 300, Desktop.top + 200});
    Tick();
    Paint();
    EXPECT_EQ(TakePicture(Desktop).Count(Green), 640U * 480U);
}

TEST_F(ScreenTest, WindowLeftByARebuildIsSeenThrough)
{
    InputAndPaint({Sample(100, 100), Sample(200, 100)});
    Choose(ChooseGDI);
    Input({Sample(1, 1)});
    Paint();
    EXPECT_EQ(TakePicture(Desktop).Count(Green), 640U * 480U);
}

TEST_F(ScreenTest, ClicksOnInkReachWhatIsBelow)
{
    InputAndPaint({Sample(100, 100), Sample(200, 100)});
    EXPECT_EQ(WindowFromPoint({350, 160}), backdrop.Window());
}

} // namespace

} // namespace zq::LM::test
