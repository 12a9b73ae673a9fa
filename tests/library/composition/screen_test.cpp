// What the user sees of the composed overlay.
#include "support/library/composition_test.h"

namespace zq::LM::test {

namespace {

constexpr COLORREF Green = RGB(0, 128, 0);

class ScreenTest : public CompositionTest {
protected:
    ScreenTest() { library.Create(); }

    Backdrop backdrop{Desktop, Green};
};

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

} // namespace

} // namespace zq::LM::test
