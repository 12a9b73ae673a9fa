// The hover cross-hair and the colour picker's swatch on the real screen, and picking a real pixel's colour.
#include "support/library/ink_on_screen.h"

#include "support/fakes/cursor.h"

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

// A blue window under the mouse cursor, which lies below the overlay. It is part of the green one: of two
// windows of their own X has the green one above now and then, when the machine is busy.
class ColourPickerPixels : public CursorPixels {
protected:
    void SetUp() override
    {
        CursorPixels::SetUp();
        params.colorPicker = 1;
        Apply();
        SettleScreen();
    }

    CursorStandIn mouse{library.Module(), {620, 420}};
    Backdrop below{{400, 340, 440, 380}, Blue, backdrop.Window()};
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
    mouse.Set({590, 420});
    Hover(101, 100);
    EXPECT_EQ(Params().inkColor, Green);
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

} // namespace

} // namespace zq::LM::test
