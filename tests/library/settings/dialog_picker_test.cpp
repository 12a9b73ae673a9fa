// Choosing a colour in the settings dialog by its wheel and its value bar.
#include "library/settings/settings_dialog_test.h"

#include "settings/colour_geometry.h"
#include "settings/colour_images.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string>

namespace zq::LM::test {
namespace {

struct ShownHsv {
    int hue;
    int saturation;
    int value;
};

class SettingsPicker : public SettingsDialogTest {
protected:
    void Press(POINT at)
    {
        cursor.Set(at);
        SendMessageW(Dialog(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    }
    void MoveTo(POINT at)
    {
        cursor.Set(at);
        SendMessageW(Dialog(), WM_MOUSEMOVE, MK_LBUTTON, 0);
    }
    void LetGo() const { SendMessageW(Dialog(), WM_LBUTTONUP, 0, 0); }

    ShownHsv Shown() const
    {
        ShownHsv shown{};
        char opening = 0;
        char comma = 0;
        char secondComma = 0;
        char closing = 0;
        std::istringstream text(Text(EditHsv));
        text >> opening >> shown.hue >> comma >> shown.saturation >> secondComma >> shown.value >> closing;
        EXPECT_TRUE(text) << text.str();
        EXPECT_EQ((std::string{opening, comma, secondComma, closing}), "(,,)") << text.str();
        return shown;
    }

    int WheelRadius() const
    {
        const SIZE size = Size(WheelArea);
        return WheelIn(size.cx, size.cy).radius;
    }

    CursorStandIn cursor{library.Module()};
};

// The state snaps to what the stored colour gives back, which may be a degree or a step beside.
void ExpectNear(int shown, int wanted) { EXPECT_LE(std::abs(shown - wanted), 1) << shown << ", " << wanted; }

TEST_F(SettingsPicker, StraightBelowTheCentreIsHue90AndStraightAbove270)
{
    OpenWithColour(0x00FFFFFF);
    Press(FromMiddle(WheelArea, 0, 40));
    ExpectNear(Shown().hue, 90);
    MoveTo(FromMiddle(WheelArea, 0, -40));
    ExpectNear(Shown().hue, 270);
    MoveTo(FromMiddle(WheelArea, 40, 0));
    ExpectNear(Shown().hue, 0);
    MoveTo(FromMiddle(WheelArea, -40, 0));
    ExpectNear(Shown().hue, 180);
    ExpectNear(Shown().saturation, 40 * 255 / WheelRadius());
    EXPECT_EQ(Shown().value, 255);
}

TEST_F(SettingsPicker, TheStoredColourIsTheRoundedOne)
{
    OpenWithColour(0x00FFFFFF);
    const SIZE size = Size(WheelArea);
    const WheelPlace wheel = WheelIn(size.cx, size.cy);
    int differing = 0;
    for (int below = 30; below < 40; ++below) {
        const Rgb chosen =
            RgbFromHsv(ColourAtWheelPoint({wheel.centre.x, wheel.centre.y + below}, wheel, 255));
        differing += RoundedReference(chosen) != TruncatedReference(chosen) ? 1 : 0;
        Press(FromMiddle(WheelArea, 0, below));
        EXPECT_EQ(Record().inkColor, RoundedReference(chosen)) << below;
    }
    EXPECT_GT(differing, 0);
}

TEST_F(SettingsPicker, OutsideTheCircleTheSaturationIsFull)
{
    OpenWithColour(0x00FFFFFF);
    Press(OnScreen(WheelArea, 0, 0)); // the control's corner still belongs to it
    EXPECT_EQ(Shown().saturation, 255);
    const SIZE size = Size(WheelArea);
    Press(OnScreen(WheelArea, size.cx - 1, size.cy - 1));
    EXPECT_EQ(Shown().saturation, 255);
}

TEST_F(SettingsPicker, RightAndBottomOfTheWheelDoNotBelongToIt)
{
    OpenWithColour(0x00808080);
    const SIZE size = Size(WheelArea);
    Press(OnScreen(WheelArea, size.cx, 10));
    Press(OnScreen(WheelArea, 10, size.cy));
    Press(OnScreen(WheelArea, -1, 10));
    EXPECT_EQ(Record().inkColor, 0x00808080U);
}

TEST_F(SettingsPicker, TheValueBarEndsInBlackAndFull)
{
    OpenWithColour(0x000000FF);
    const SIZE size = Size(ValueBarArea);
    Press(OnScreen(ValueBarArea, size.cx - 1, 3)); // right of the gradient
    EXPECT_EQ(Record().inkColor, 0x000000FFU);
    MoveTo(OnScreen(ValueBarArea, 2, 3)); // left of it
    EXPECT_EQ(Record().inkColor, 0U);
    EXPECT_EQ(Shown().value, 0);
}

TEST_F(SettingsPicker, TheValueBarLeavesHueAndSaturation)
{
    OpenWithColour(0x00FF0000);
    const SIZE size = Size(ValueBarArea);
    Press(OnScreen(ValueBarArea, 16 + (size.cx - 32) / 2, 3));
    EXPECT_EQ(Shown().hue, 240);
    EXPECT_EQ(Shown().saturation, 255);
    ExpectNear(Shown().value, 127);
}

TEST_F(SettingsPicker, BlackLeavesTheWheelsMarkerWhereItIs)
{
    OpenWithColour(0x0000FF00);
    const Picture before = Seen(WheelArea);
    Press(OnScreen(ValueBarArea, 0, 0));
    EXPECT_EQ(Record().inkColor, 0U);
    EXPECT_EQ(Shown().hue, 120);
    EXPECT_EQ(Shown().saturation, 255);
    EXPECT_EQ(Seen(WheelArea).Differences(before), 0U);
    MoveTo(OnScreen(ValueBarArea, Size(ValueBarArea).cx - 1, 0)); // and back to full green
    EXPECT_EQ(Record().inkColor, 0x0000FF00U);
}

TEST_F(SettingsPicker, BesideBothControlsNothingHappens)
{
    OpenWithColour(0x00123456);
    Press(OnScreen(SwatchArea, 3, 3));
    MoveTo({0, 0});
    EXPECT_EQ(Record().inkColor, 0x00123456U);
}

TEST_F(SettingsPicker, MovesCountOnlyWhileTheButtonIsDown)
{
    OpenWithColour(0x00FFFFFF);
    MoveTo(FromMiddle(WheelArea, 30, 0));
    EXPECT_EQ(Record().inkColor, 0x00FFFFFFU);
    Press({0, 0}); // anywhere
    MoveTo(FromMiddle(WheelArea, 30, 0));
    const std::uint32_t dragged = Record().inkColor;
    EXPECT_NE(dragged, 0x00FFFFFFU);
    LetGo();
    MoveTo(FromMiddle(WheelArea, -30, 0));
    EXPECT_EQ(Record().inkColor, dragged);
}

TEST_F(SettingsPicker, APenOnTheWheelCountsToo)
{
    OpenWithColour(0x00FFFFFF);
    cursor.Set(FromMiddle(WheelArea, 0, 500)); // nowhere
    SendMessageW(Dialog(), WM_POINTERDOWN, 0, 0);
    MoveTo(FromMiddle(WheelArea, 0, 40));
    ExpectNear(Shown().hue, 90);
}

TEST_F(SettingsPicker, ADragHasTheMouseUntilTheButtonIsReleased)
{
    OpenWithColour(0x00FFFFFF);
    Press(FromMiddle(WheelArea, 0, 40));
    EXPECT_EQ(GetCapture(), Dialog());
    Press(FromMiddle(WheelArea, 0, 40)); // a pen and its button
    MoveTo(FromMiddle(WheelArea, 0, -40));
    ExpectNear(Shown().hue, 270);
    LetGo();
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(SettingsPicker, AReleaseWithoutADragTakesTheMouseFromNobody)
{
    OpenWithColour(0x00FFFFFF);
    SetCapture(library.GetWindowHandle());
    LetGo();
    EXPECT_EQ(GetCapture(), library.GetWindowHandle());
    ReleaseCapture();
}

// The test's own pointer presses, leaves the dialog and lets go there.
TEST_F(SettingsPicker, AReleaseOutsideTheDialogEndsTheDrag)
{
    OpenWithColour(0x00FFFFFF);
    const auto point = [this](POINT at, DWORD button) {
        cursor.Set(at);
        SetCursorPos(at.x, at.y);
        mouse_event(button, 0, 0, 0, 0);
        SettleScreen();
    };
    const RECT place = PlaceOf(Dialog());
    point(FromMiddle(WheelArea, 30, 0), MOUSEEVENTF_LEFTDOWN);
    const std::uint32_t dragged = Record().inkColor;
    ASSERT_NE(dragged, 0x00FFFFFFU);
    point({place.left - 30, place.top - 30}, MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(GetCapture(), nullptr);
    MoveTo(FromMiddle(WheelArea, -30, 0));
    EXPECT_EQ(Record().inkColor, dragged);
}

TEST_F(SettingsPicker, LosingTheMouseEndsTheDrag)
{
    OpenWithColour(0x00FFFFFF);
    Press({0, 0});
    SetCapture(library.GetWindowHandle());
    ReleaseCapture();
    MoveTo(FromMiddle(WheelArea, 30, 0));
    EXPECT_EQ(Record().inkColor, 0x00FFFFFFU);
}

TEST_F(SettingsPicker, TheMouseTakenByTheDialogItselfIsNotLost)
{
    OpenWithColour(0x00FFFFFF);
    Press({0, 0});
    SendMessageW(Dialog(), WM_CAPTURECHANGED, 0, reinterpret_cast<LPARAM>(Dialog()));
    MoveTo(FromMiddle(WheelArea, 30, 0));
    EXPECT_NE(Record().inkColor, 0x00FFFFFFU);
}

TEST_F(SettingsPicker, ClosingEndsTheDrag)
{
    OpenWithColour(0x00FFFFFF);
    Press({0, 0});
    HWND closed = Dialog();
    Close();
    EXPECT_EQ(GetCapture(), nullptr);
    Open();
    MoveTo(FromMiddle(WheelArea, 30, 0));
    EXPECT_EQ(Record().inkColor, 0x00FFFFFFU);
    SendMessageW(closed, WM_LBUTTONDOWN, MK_LBUTTON, 0);
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(SettingsPicker, TheSwatchIsAsTheRecord)
{
    OpenWithColour(0x00804020);
    EXPECT_TRUE(SwatchShows(0x00804020));
    SetField(&LM_Params::inkColor, 0x00112233);
    EXPECT_TRUE(SwatchShows(0x00112233));
}

// What is on the screen where no marker lies.
class PicturesOnTheScreen : public SettingsPicker {
protected:
    template <typename Paint> void ExpectPicture(int id, const Paint& paint, POINT marker, int reach)
    {
        const SIZE size = Size(id);
        std::vector<std::uint8_t> bytes(RowBytes(size.cx) * static_cast<std::size_t>(size.cy));
        paint(BitmapPixels{bytes, size.cx, size.cy});
        const Picture seen = Seen(id);
        const POINT corner = OnScreen(id, 0, 0);
        int wrong = 0;
        for (int y = 0; y < size.cy; ++y) {
            for (int x = 0; x < size.cx; ++x) {
                const std::uint8_t* pixel = bytes.data() +
                                            static_cast<std::size_t>(size.cy - 1 - y) * RowBytes(size.cx) +
                                            3 * static_cast<std::size_t>(x);
                const bool nearMarker = std::max(std::abs(x - marker.x), std::abs(y - marker.y)) <= reach;
                const COLORREF colour = seen.At(corner.x + x, corner.y + y);
                wrong += !nearMarker && colour != RGB(pixel[2], pixel[1], pixel[0]) ? 1 : 0;
            }
        }
        EXPECT_EQ(wrong, 0) << id;
    }

    void ExpectBoth()
    {
        const Hsv colour = HsvFromRgb(RgbFromReference(Record().inkColor));
        const SIZE wheel = Size(WheelArea);
        const PixelPoint disc = WheelMarker(colour, WheelIn(wheel.cx, wheel.cy));
        ExpectPicture(WheelArea, PaintWheel, {disc.x, disc.y}, 11);
        const SIZE bar = Size(ValueBarArea);
        ExpectPicture(ValueBarArea, PaintValueBar, {ValueMarkerColumn(colour.value, bar.cx), 0},
                      bar.cy / 2 + 4);
    }
};

TEST_F(PicturesOnTheScreen, AreSeenAfterOpening)
{
    OpenWithColour(0x00804020);
    ExpectBoth();
}

TEST_F(PicturesOnTheScreen, AreSeenAfterEachOfTheHostsColours)
{
    OpenWithColour(0x00804020);
    for (const COLORREF colour : {0x000000FFU, 0x0000C000U, 0x00FFFFFFU, 0x00010203U}) {
        SetField(&LM_Params::inkColor, colour);
        ExpectBoth();
    }
}

TEST_F(PicturesOnTheScreen, AreSeenAfterADrag)
{
    OpenWithColour(0x00FFFFFF);
    Press(FromMiddle(WheelArea, 10, 10));
    for (int step = 0; step < 20; ++step) {
        MoveTo(FromMiddle(WheelArea, 10 - 2 * step, 10 + step));
    }
    ExpectBoth();
}

TEST_F(PicturesOnTheScreen, AreSeenAgainAfterTheDialogOrOneOfThemWasCovered)
{
    OpenWithColour(0x00804020);
    for (HWND covered : {Dialog(), Control(WheelArea), Control(ValueBarArea)}) {
        {
            const Backdrop cover(PlaceOf(covered), 0x00FF0000);
            SetWindowPos(cover.Window(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
            SettleScreen();
        }
        SettleScreen();
        ExpectBoth();
    }
}

} // namespace
} // namespace zq::LM::test
