// The settings dialog with the system's own mouse and screen, and the ink that it changes.
#include "library/settings/settings_dialog_test.h"

#include "settings/colour_conversion.h"

namespace zq::LM::test {
namespace {

class SettingsByMouse : public SettingsDialogTest {
protected:
    static void Button(DWORD flag)
    {
        INPUT input{};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = flag;
        SendInput(1, &input, sizeof(input));
    }

    static void ClickAt(POINT point)
    {
        SetCursorPos(point.x, point.y);
        Button(MOUSEEVENTF_LEFTDOWN);
        Button(MOUSEEVENTF_LEFTUP);
    }
};

TEST_F(SettingsByMouse, DragsOnTheWheel)
{
    Open();
    const auto colour = [this] { return Record().inkColor; };
    const POINT middle = FromMiddle(WheelArea, 0, 0);
    SetCursorPos(middle.x, middle.y + 30);
    Button(MOUSEEVENTF_LEFTDOWN);
    ASSERT_TRUE(PumpUntil([&] { return colour() != 0x00202020; }));
    const std::uint32_t pressed = colour();
    SetCursorPos(middle.x - 30, middle.y);
    EXPECT_TRUE(PumpUntil([&] { return colour() != pressed; }));
    Button(MOUSEEVENTF_LEFTUP);
    const Hsv shown = HsvFromRgb(RgbFromReference(colour()));
    EXPECT_NEAR(shown.hue, 180, 8); // a dark colour has few shades
    EXPECT_EQ(shown.value, 32);
}

TEST_F(SettingsByMouse, ClicksOnTheValueBar)
{
    Open();
    ClickAt(OnScreen(ValueBarArea, Size(ValueBarArea).cx - 3, 5));
    EXPECT_TRUE(PumpUntil([this] { return Record().inkColor == 0x00FFFFFF; }));
}

TEST_F(SettingsByMouse, ClicksOnACheckBox)
{
    Open();
    ClickAt(FromMiddle(CheckOutline, 0, 0));
    EXPECT_TRUE(PumpUntil([this] { return Record().outline == 1; }));
}

TEST_F(SettingsByMouse, MovesATrackbar)
{
    Open();
    ClickAt(FromMiddle(TrackbarInkLife, 40, 0)); // a page beyond the thumb
    EXPECT_TRUE(PumpUntil([this] { return Record().inkDecayTime > 100; }));
}

TEST_F(SettingsByMouse, CloseBoxClosesIt)
{
    Open();
    TITLEBARINFOEX bar{};
    bar.cbSize = sizeof(bar);
    SendMessageW(Dialog(), WM_GETTITLEBARINFOEX, 0, reinterpret_cast<LPARAM>(&bar));
    RECT box = bar.rgrect[5];
    if (IsRectEmpty(&box)) { // a system that does not say: the right end of the caption
        const RECT place = PlaceOf(Dialog());
        const LONG frame = GetSystemMetrics(SM_CYDLGFRAME);
        const LONG caption = GetSystemMetrics(SM_CYCAPTION);
        box = {place.right - frame - caption, place.top + frame, place.right - frame,
               place.top + frame + caption};
    }
    ClickAt({(box.left + box.right) / 2, (box.top + box.bottom) / 2});
    EXPECT_TRUE(PumpUntil([] { return OpenDialogs().empty(); }));
}

// Ink beside the open dialog.
class InkBySettings : public SettingsDialogTest {
protected:
    static constexpr RECT WholeScreen = {0, 0, 1024, 768};

    void SetUp() override
    {
        shell.Move(WholeScreen);
        CreateWithGDI();
        SetField(&LM_Params::brushSize, 20);
        SetField(&LM_Params::usePressure, 0);
    }

    // Away from the dialog, from the found colour and from the tray.
    static constexpr int PenX = 500;
    static constexpr int PenY = 650;
    static constexpr RECT AroundPen = {PenX - 60, PenY - 60, PenX + 60, PenY + 60};

    const Backdrop ground{AroundPen, 0x00FFFFFF}; // before the overlay, so that it lies below

    void Stroke() const { InputAndPaint({Sample(PenX - 40, PenY), Sample(PenX + 40, PenY)}); }
};

TEST_F(InkBySettings, HasTheColourAndTheWidthThatTheDialogShows)
{
    Open();
    CursorStandIn cursor(library.Module());
    cursor.Set(OnScreen(ValueBarArea, Size(ValueBarArea).cx - 20, 5));
    SendMessageW(Dialog(), WM_LBUTTONDOWN, MK_LBUTTON, 0);
    SendMessageW(Dialog(), WM_LBUTTONUP, 0, 0);
    const std::uint32_t grey = Record().inkColor;
    EXPECT_NE(grey, 0x00202020U);

    MoveTrackbar(TrackbarBrushSize, 60);
    Stroke();
    const Picture wide = TakePicture(AroundPen);
    EXPECT_EQ(wide.At(PenX, PenY), grey);
    EXPECT_EQ(wide.At(PenX, PenY + 27), grey);
    EXPECT_EQ(wide.At(PenX, PenY + 34), 0x00FFFFFFU);

    Type(EditBrushSize, "20");
    Click(CheckOffset); // 50 pixels up
    Stroke();
    const Picture narrow = TakePicture(AroundPen);
    EXPECT_EQ(narrow.At(PenX, PenY), 0x00FFFFFFU);
    EXPECT_EQ(narrow.At(PenX, PenY - 50), grey);
    EXPECT_EQ(narrow.At(PenX, PenY - 50 + 14), 0x00FFFFFFU);
}

TEST_F(InkBySettings, IsGoneWhenLinesAreSwitchedOff)
{
    Open();
    Stroke();
    EXPECT_EQ(TakePicture(AroundPen).At(PenX, PenY), 0x00202020U);
    Click(CheckLine);
    InputAndPaint({Sample(PenX + 40, PenY)});
    EXPECT_EQ(TakePicture(AroundPen).At(PenX, PenY), 0x00FFFFFFU);
}

// The whole way of a colour from the screen into the ink.
class ColourFromTheScreen : public InkBySettings {
protected:
    static constexpr COLORREF Found = 0x00408020;
    Backdrop source{{40, 600, 140, 700}, Found};
};

TEST_F(ColourFromTheScreen, IsShownAtTheHoveringPenTakenByTheFirstContactAndDrawn)
{
    Open();
    SetCursorPos(90, 650);
    Click(ButtonColorPicker);

    InputAndPaint({Sample(PenX, PenY, 0)});
    const Picture hovering = TakePicture(AroundPen);
    EXPECT_EQ(hovering.At(PenX - 32, PenY - 32), Found);
    EXPECT_EQ(hovering.At(PenX - 32 - 18, PenY - 32), 0x00C0C0C0U);
    EXPECT_EQ(Record().colorPicker, 1); // it goes on until a contact

    InputAndPaint({Sample(PenX, PenY)});
    EXPECT_EQ(Params().colorPicker, 0);
    EXPECT_EQ(Params().inkColor, Found);

    clock.Advance(1000);
    Tick();
    Stroke();
    EXPECT_EQ(Text(EditRgb), "( 32, 128,  64)");
    EXPECT_EQ(TakePicture(AroundPen).At(PenX, PenY), Found);
}

} // namespace
} // namespace zq::LM::test
