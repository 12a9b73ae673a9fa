// The hover cross-hair and the colour picker's swatch on the real screen, and picking a real pixel's colour.
#include "ink_on_screen.h"

#include "support/import_patch.h"

namespace zq::LM::test {

namespace {

constexpr COLORREF Grey = 0x00C0C0C0;

class CursorPixels : public OpaqueInkOnScreen {
protected:
    void SetUp() override
    {
        OpaqueInkOnScreen::SetUp();
        params.cursor = 1;
        Apply();
    }

    void Hover(int x, int y) const { InputAndPaint({Sample(x, y, 0)}); }
};

TEST_F(CursorPixels, AreACrossInInkOnAContrastCross)
{
    Hover(100, 100);
    const Picture picture = Look();
    const std::string print = picture.Print(Green, {85, 85, 116, 116});
    for (const int distance : {0, 4}) {
        EXPECT_EQ(picture.At(100 - distance, 100), Red) << distance << print;
        EXPECT_EQ(picture.At(100 + distance, 100), Red) << distance << print;
        EXPECT_EQ(picture.At(100, 100 - distance), Red) << distance << print;
        EXPECT_EQ(picture.At(100, 100 + distance), Red) << distance << print;
    }
    EXPECT_EQ(picture.At(93, 100), White) << print;
    EXPECT_EQ(picture.At(107, 100), White) << print;
    EXPECT_EQ(picture.At(100, 93), White) << print;
    EXPECT_EQ(picture.At(100, 107), White) << print;
    EXPECT_EQ(picture.At(98, 104), White) << "beside the arm" << print;
    EXPECT_EQ(picture.At(105, 105), Green) << "between the arms" << print;
}

TEST_F(CursorPixels, AreNoLargerThanTheArms)
{
    Hover(100, 100);
    const RECT bounds = Look().BoundsOfOther(Green);
    EXPECT_NEAR(bounds.left, 91, 1);
    EXPECT_NEAR(bounds.top, 91, 1);
    EXPECT_NEAR(bounds.right, 109, 1);
    EXPECT_NEAR(bounds.bottom, 109, 1);
}

TEST_F(CursorPixels, FollowThePen)
{
    Hover(100, 100);
    Hover(300, 200);
    const Picture picture = Look();
    EXPECT_EQ(picture.At(100, 100), Green);
    EXPECT_EQ(picture.At(300, 200), Red);
}

TEST_F(CursorPixels, StayAtThePenWithTheOffset)
{
    params.useOffset = 1;
    Apply();
    Hover(100, 100);
    EXPECT_EQ(Look().At(100, 100), Red);
}

TEST_F(CursorPixels, GoWhileThePenTouches)
{
    Hover(100, 100);
    InputAndPaint({Sample(100, 100, 1)});
    EXPECT_EQ(Look().At(100, 100), Green);
}

TEST_F(CursorPixels, AreNotThereWithoutTheirFlag)
{
    params.cursor = 0;
    Apply();
    Hover(100, 100);
    EXPECT_EQ(Look().At(100, 100), Green);
}

TEST_F(CursorPixels, AreDrawnWithoutStrokesToo)
{
    params.line = 0;
    Apply();
    Hover(100, 100);
    EXPECT_EQ(Look().At(100, 100), Red);
}

// Where the library believes the mouse cursor to be, in screen coordinates.
POINT g_mouse = {};

BOOL WINAPI SayMouse(POINT* position)
{
    *position = g_mouse;
    return TRUE;
}

// A blue window under the mouse cursor, which lies below the overlay.
class ColourPickerPixels : public CursorPixels {
protected:
    void SetUp() override
    {
        CursorPixels::SetUp();
        g_mouse = {620, 420};
        params.colorPicker = 1;
        Apply();
        SettleScreen();
    }

    ImportPatch mouse{library.Module(), "USER32.dll", "GetCursorPos", AsAddress(SayMouse)};
    Backdrop below{{600, 400, 640, 440}, Blue};
};

TEST_F(ColourPickerPixels, ContactTakesTheScreensColour)
{
    InputAndPaint({Sample(100, 100)});
    EXPECT_EQ(Params().inkColor, Blue);
    EXPECT_EQ(Params().colorPicker, 0);
    Stroke(100, 200, 100);
    EXPECT_EQ(Look().At(150, 100), Blue);
}

TEST_F(ColourPickerPixels, HoveringFollowsTheScreensColourAndGoesOn)
{
    Hover(100, 100);
    EXPECT_EQ(Params().inkColor, Blue);
    EXPECT_EQ(Params().colorPicker, 1);
    g_mouse = {590, 420};
    Hover(101, 100);
    EXPECT_EQ(Params().inkColor, Green);
}

TEST_F(ColourPickerPixels, NoStrokeIsDrawnWhilePicking)
{
    params.colorPicker = 2; // a contact ends the picking only when the flag is 1
    Apply();
    Stroke(300, 400, 300);
    EXPECT_EQ(Look().At(350, 300), Green);
}

TEST_F(ColourPickerPixels, TheSwatchIsADotOfThatColourWithAGreyRim)
{
    Hover(200, 200);
    const Picture picture = Look();
    const std::string print = picture.Print(Green, {140, 140, 210, 210});
    EXPECT_EQ(picture.At(168, 168), Blue) << print;
    EXPECT_EQ(picture.At(155, 168), Blue);
    EXPECT_EQ(picture.At(181, 168), Blue);
    EXPECT_EQ(picture.At(150, 168), Grey);
    EXPECT_EQ(picture.At(168, 186), Grey);
    EXPECT_EQ(picture.At(152, 152), Green) << "round, not square";
    EXPECT_EQ(picture.At(200, 200), Green) << "no cross-hair while picking";
}

TEST_F(ColourPickerPixels, TheSwatchKeepsAwayFromTheLeftEdge)
{
    Hover(10, 300);
    const Picture picture = Look();
    EXPECT_EQ(picture.At(42, 268), Blue);
    EXPECT_EQ(picture.At(24, 268), Grey);
}

TEST_F(ColourPickerPixels, WithoutTheCursorFlagThereIsNoSwatchAndTheInkStays)
{
    params.cursor = 0;
    Apply();
    Hover(200, 200);
    EXPECT_EQ(Look({0, 0, 300, 300}).Count(Green), 300U * 300U);
    EXPECT_EQ(Params().inkColor, Red);
}

} // namespace

} // namespace zq::LM::test
