// An overlay that is shown to work, before and after what a test does to it: its ink appears on the real
// screen and goes.
#pragma once

#include "support/library/overlay_test.h"

namespace zq::LM {

class WorkingOverlayTest : public test::OverlayTest {
protected:
    static constexpr COLORREF Green = 0x00008000;
    static constexpr COLORREF Red = 0x000000FF;
    static constexpr int Life = 1000;

    static LM_Params RedInk()
    {
        LM_Params params{};
        params.inkDecayTime = Life;
        params.inkColor = Red;
        params.minBrushSize = 1;
        params.brushSize = 10;
        params.maxPressure = test::FullPressure;
        params.line = 1;
        return params;
    }

    // A stroke through the middle of the screen, and the colour seen there.
    void InputStroke() const { Input({test::Sample(300, 240), test::Sample(340, 240)}); }
    static COLORREF ColourInTheMiddle()
    {
        constexpr RECT Pixel = {Desktop.left + 320, Desktop.top + 240, Desktop.left + 321, Desktop.top + 241};
        return test::TakePicture(Pixel).At(Pixel.left, Pixel.top);
    }

    void ExpectInkInTheMiddle() const
    {
        Paint();
        EXPECT_EQ(ColourInTheMiddle(), Red);
    }

    void ExpectNoInkInTheMiddle() const
    {
        Paint();
        EXPECT_EQ(ColourInTheMiddle(), Green);
    }

    // Whatever was drawn before outlives its life first.
    void ExpectWorking()
    {
        ASSERT_NE(library.GetWindowHandle(), nullptr);
        SetParams(RedInk());
        clock.Advance(10 * Life);
        InputNothing();
        ExpectNoInkInTheMiddle();
        InputStroke();
        ExpectInkInTheMiddle();
        Tick(); // only ink that a tick has seen is wiped by another
        clock.Advance(Life);
        Tick();
        ExpectNoInkInTheMiddle();
    }

    test::Backdrop backdrop{Desktop, Green};
};

} // namespace zq::LM
