// The information overlay on the Direct2D back-end: texts without bars, on the screen.
#include "support/overlay_test.h"

namespace zq::LM::test {

namespace {

constexpr COLORREF Green = RGB(0, 128, 0);

class Direct2DInformationTest : public OverlayTest {
protected:
    // At the origin: elsewhere this back-end draws as far from its place.
    static constexpr RECT Screen = {0, 0, 640, 480};

    Direct2DInformationTest()
    {
        shell.Move(Screen);
        library.Create();
        Choose(ChooseDirect2D);
        DestroyAndForget();
        ModuleWithDevices();
        library.Create();
    }
    ~Direct2DInformationTest() override { library.SetDebugLevel(0); }

    // Paints the frame of an input without samples.
    void Repaint() const
    {
        const LM_PenData unused{};
        library.InputPenDataArray(&unused, 0);
        Paint();
    }

    // Of this part of the overlay.
    static Picture Part(int left, int top, int right, int bottom)
    {
        return TakePicture({left, top, right, bottom});
    }
    static bool IsEmpty(int left, int top, int right, int bottom)
    {
        return Part(left, top, right, bottom).Count(Green) ==
               static_cast<std::size_t>((right - left) * (bottom - top));
    }

    Backdrop backdrop{Screen, Green};
};

// Text is not smoothed here, so its pixels are of its colour.
TEST_F(Direct2DInformationTest, TextsShowInTheirColoursAndBarsDoNot)
{
    library.SetDebugLevel(1);
    Repaint();
    clock.Advance(1); // a bar, if there were one, would be full
    Repaint();
    for (const int top : {32, 56, 80, 104, 128, 152, 176, 200}) {
        EXPECT_GT(Part(310, top, 640, top + 24).Count(0x00FFFF60), 20U) << "text at " << top;
    }
    EXPECT_GT(Part(280, 288, 640, 312).Count(0x00FF33FF), 20U);
    EXPECT_GT(Part(280, 352, 640, 376).Count(0x0000FF00), 20U);
    EXPECT_TRUE(IsEmpty(280, 312, 640, 352));
    EXPECT_TRUE(IsEmpty(280, 376, 640, 480));
    EXPECT_TRUE(IsEmpty(0, 0, 280, 480));
}

TEST_F(Direct2DInformationTest, AtLevel0ThereIsNone)
{
    Repaint();
    EXPECT_TRUE(IsEmpty(0, 0, 640, 480));
}

TEST_F(Direct2DInformationTest, NothingOfItRemainsOnTheScreenAfterItsLevelIs0AndTheNextPaint)
{
    library.SetDebugLevel(1);
    Repaint();
    EXPECT_FALSE(IsEmpty(0, 0, 640, 480));
    library.SetDebugLevel(0);
    Repaint();
    EXPECT_TRUE(IsEmpty(0, 0, 640, 480));
}

TEST_F(Direct2DInformationTest, TheFirstFrameOfAWindowMayCarryIt)
{
    DestroyAndForget();
    library.SetDebugLevel(1); // that frame comes before there is a bitmap
    EXPECT_NE(library.Create(), nullptr);
    Repaint();
    EXPECT_FALSE(IsEmpty(310, 32, 640, 56));
}

} // namespace

} // namespace zq::LM::test
