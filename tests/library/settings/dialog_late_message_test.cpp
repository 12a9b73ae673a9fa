// What a closed settings dialog's window still gets: nothing of it counts.
#include "library/settings/settings_dialog_test.h"
#include "support/hook/hooks.h"

#include <cstring>

namespace zq::LM::test {
namespace {

class LateMessages : public SettingsDialogTest {
protected:
    void SetUp() override
    {
        SettingsDialogTest::SetUp();
        Open();
        before = Record();
    }

    void ExpectUnchanged() const
    {
        const LM_Params after = Record();
        EXPECT_EQ(std::memcmp(&after, &before, sizeof(after)), 0)
            << after.brushSize << " " << after.inkDecayTime << " " << int{after.line};
    }

    LM_Params before{};
};

TEST_F(LateMessages, ASliderThatIsHeldWhileTheDialogClosesChangesNothing)
{
    HWND slider = Control(TrackbarInkLife);
    RECT thumb{};
    SendMessageW(slider, TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
    const LPARAM middle = MAKELPARAM((thumb.left + thumb.right) / 2, (thumb.top + thumb.bottom) / 2);
    SendMessageW(slider, WM_LBUTTONDOWN, MK_LBUTTON, middle);
    ASSERT_EQ(GetCapture(), slider);
    Close();
    SendMessageW(slider, WM_MOUSEMOVE, MK_LBUTTON, middle + 40);
    SendMessageW(slider, WM_LBUTTONUP, 0, middle + 40);
    PumpMessages();
    ExpectUnchanged();
}

TEST_F(LateMessages, SlidersBoxesAndEditsOfAClosedDialogChangeNothing)
{
    Close();
    MoveTrackbar(TrackbarBrushSize, 50);
    Click(CheckLine);
    SendMessageW(Dialog(), WM_COMMAND, CheckOffset, 0);
    Type(EditBrushSize, "99");
    Click(ButtonColorPicker);
    ExpectUnchanged();
}

TEST_F(LateMessages, NorDoTheyWhileAnotherDialogIsOpen)
{
    HWND closed = Dialog();
    Close();
    Open();
    Type(EditBrushSize, "250");
    before.brushSize = 200;
    SendMessageW(closed, WM_COMMAND, CheckLine, 0); // would store what was typed
    ExpectUnchanged();
}

TEST_F(LateMessages, AClosedDialogClosesNoOther)
{
    HWND closed = Dialog();
    Close();
    HWND open = Open();
    SendMessageW(closed, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_THAT(OpenDialogs(), testing::ElementsAre(open));
}

TEST_F(LateMessages, AClosedDialogDoesNotTakeThePlaceOfTheOpenOne)
{
    HWND closed = Dialog();
    Close();
    Open();
    SendMessageW(closed, WM_INITDIALOG, 0, 0);
    Type(EditBrushSize, "50");
    EXPECT_EQ(Record().brushSize, 50U);
}

TEST_F(LateMessages, ADialogThatIsDestroyedWhileItsSlidersAreReadChangesNothing)
{
    Hooks calls(library.Module());
    calls.Answer<"SendDlgItemMessageW">(
        SendDlgItemMessageW,
        [this](HWND dialog, int id, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
            DestroyWindow(library.GetWindowHandle());
            return SendDlgItemMessageW(dialog, id, message, wParam, lParam);
        });
    SendMessageW(Dialog(), WM_HSCROLL, 0, 0);
    EXPECT_FALSE(IsWindow(Dialog()));
    ExpectUnchanged();
}

TEST_F(LateMessages, ADialogThatIsDestroyedWhileItsBoxesAreReadChangesNothing)
{
    Hooks calls(library.Module());
    calls.Answer<"IsDlgButtonChecked">(IsDlgButtonChecked, [this](HWND dialog, int id) -> UINT {
        DestroyWindow(library.GetWindowHandle());
        return IsDlgButtonChecked(dialog, id);
    });
    SendMessageW(Dialog(), WM_COMMAND, CheckLine, 0);
    EXPECT_FALSE(IsWindow(Dialog()));
    ExpectUnchanged();
}

} // namespace
} // namespace zq::LM::test
