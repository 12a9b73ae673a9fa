// The settings dialog's opening, closing and end, and what it leaves behind.
#include "library/settings/settings_dialog_test.h"

#include "support/hook/hooks.h"
#include "support/hook/import_hook.h"
#include "support/library/object_counts.h"

namespace zq::LM::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SettingsDialogLife : public SettingsDialogTest {
protected:
    // Leads the instance into a change of the back-end, and completes it.
    void Rebuild()
    {
        Choose(ChooseDirectComposition);
        Input({Sample(1, 1)});
    }

    void Key(WPARAM key) const
    {
        MSG message{};
        message.hwnd = GetFocus() != nullptr ? GetFocus() : Dialog();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        EXPECT_TRUE(IsDialogMessageW(Dialog(), &message));
        PumpMessages();
    }
};

TEST_F(SettingsDialogLife, IsNotThereBeforeItIsAskedFor) { EXPECT_THAT(AllDialogs(), IsEmpty()); }

TEST_F(SettingsDialogLife, BelongsToTheOverlay)
{
    EXPECT_EQ(GetWindow(Open(), GW_OWNER), library.GetWindowHandle());
}

TEST_F(SettingsDialogLife, OpeningItTwiceKeepsTheOneWindow)
{
    HWND first = Open();
    EXPECT_EQ(Open(), first);
    EXPECT_THAT(AllDialogs(), ElementsAre(first));
}

TEST_F(SettingsDialogLife, ClosingHidesItAndTheNextOpeningMakesANewOne)
{
    HWND first = OpenAndClose();
    EXPECT_TRUE(IsWindow(first));
    EXPECT_FALSE(IsWindowVisible(first));
    HWND second = Open();
    EXPECT_NE(second, first);
    EXPECT_EQ(AllDialogs().size(), 2U);
}

// Before an input what it has changed is in the Core's record alone.
TEST_F(SettingsDialogLife, WhatItHasChangedSurvivesAChangeOfTheBackEnd)
{
    Open();
    Type(EditBrushSize, "77");
    Type(EditInkLife, "888");
    Click(CheckOffset);
    Rebuild();
    EXPECT_EQ(Params().brushSize, 77U);
    EXPECT_EQ(Params().inkDecayTime, 888U);
    EXPECT_EQ(Params().useOffset, 1);
}

TEST_F(SettingsDialogLife, TheTitleBarsOwnCloseCounts)
{
    HWND closed = Open();
    SendMessageW(closed, WM_SYSCOMMAND, SC_CLOSE | 0x0003, 0); // the system's own low bits
    PumpMessages();
    EXPECT_FALSE(IsWindowVisible(closed));
    EXPECT_NE(Open(), closed);
}

TEST_F(SettingsDialogLife, OtherSystemCommandsLeaveItOpen)
{
    Open();
    SendMessageW(Dialog(), WM_SYSCOMMAND, SC_RESTORE, 0);
    PumpMessages();
    EXPECT_THAT(OpenDialogs(), ElementsAre(Dialog()));
}

TEST_F(SettingsDialogLife, AnswersZeroToEveryMessage)
{
    Open();
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrW(Dialog(), DWLP_DLGPROC));
    for (const UINT message :
         {UINT{WM_INITDIALOG}, UINT{WM_COMMAND}, UINT{WM_HSCROLL}, UINT{WM_CTLCOLORSTATIC},
          UINT{WM_MOUSEMOVE}, UINT{WM_LBUTTONUP}, UINT{WM_PAINT}, UINT{WM_NULL}}) {
        EXPECT_EQ(procedure(Dialog(), message, 0, 0), 0) << message;
    }
    EXPECT_EQ(procedure(Dialog(), WM_SYSCOMMAND, SC_CLOSE, 0), 0);
}

TEST_F(SettingsDialogLife, ItsProcedureWithoutAnInstanceAnswersZero)
{
    Open();
    const auto procedure = reinterpret_cast<DLGPROC>(GetWindowLongPtrW(Dialog(), DWLP_DLGPROC));
    DestroyAndForget();
    EXPECT_EQ(procedure(Dialog(), WM_COMMAND, CheckLine, 0), 0);
    EXPECT_EQ(procedure(Dialog(), WM_SYSCOMMAND, SC_CLOSE, 0), 0);
}

TEST_F(SettingsDialogLife, EnterAndEscapeChangeNothing)
{
    Open();
    SetFocus(Control(EditInkLife));
    const LM_Params before = Record();
    Key(VK_RETURN);
    Key(VK_ESCAPE);
    EXPECT_THAT(OpenDialogs(), ElementsAre(Dialog()));
    EXPECT_EQ(Text(EditInkLife), "100");
    EXPECT_EQ(Record().inkDecayTime, before.inkDecayTime);
}

TEST_F(SettingsDialogLife, EndsWithTheInstance)
{
    HWND closed = OpenAndClose();
    HWND open = Open();
    DestroyAndForget();
    EXPECT_FALSE(IsWindow(open));
    EXPECT_FALSE(IsWindow(closed));
    CreateWithGDI();
    EXPECT_THAT(AllDialogs(), IsEmpty());
    EXPECT_TRUE(IsWindow(Open()));
}

TEST_F(SettingsDialogLife, ClosesWhenTheInstanceIsRebuilt)
{
    HWND old = Open();
    Type(EditBrushSize, "40");
    EXPECT_EQ(Record().brushSize, 40U); // and with that the engine's, which a rebuild saves
    Rebuild();
    EXPECT_FALSE(IsWindowVisible(old));
    EXPECT_NE(Open(), old);
    EXPECT_EQ(Text(EditBrushSize), "40");
    EXPECT_EQ(GetWindow(Dialog(), GW_OWNER), library.GetWindowHandle());
}

TEST_F(SettingsDialogLife, AnOldWindowsMessagesChangeNothingOfTheNewOne)
{
    HWND old = Open();
    Rebuild();
    Open();
    SetDlgItemTextA(old, EditBrushSize, "99"); // reads the edit of the open dialog
    EXPECT_EQ(Record().brushSize, 10U);
}

TEST_F(SettingsDialogLife, SurvivesTheOverlaysOwnEnd)
{
    Open();
    DestroyWindow(library.GetWindowHandle());
    PumpMessages();
    SetField(&LM_Params::brushSize, 40); // refreshes what is gone
    EXPECT_EQ(Record().brushSize, 40U);
}

TEST_F(SettingsDialogLife, CanBeOpenedAfterItCouldNotBeMade)
{
    {
        Hook<"CreateDialogParamW", decltype(CreateDialogParamW)> making(library.Module());
        making.Fail(HWND{});
        Choose(SettingsCommand);
        EXPECT_EQ(making.Count(), 1U);
    }
    EXPECT_THAT(AllDialogs(), IsEmpty());
    EXPECT_TRUE(IsWindow(Open()));
}

TEST_F(SettingsDialogLife, DoesWithoutPictures)
{
    Hook<"CreateDIBSection", decltype(CreateDIBSection)> making(library.Module());
    making.Fail(HBITMAP{});
    Open();
    EXPECT_EQ(making.Count(), 2U); // bar and wheel, and no working copy
    Type(EditBrushSize, "50");
    EXPECT_EQ(Record().brushSize, 50U);
}

TEST_F(SettingsDialogLife, DoesWithoutControls)
{
    Open();
    for (const int id : {SwatchArea, ValueBarArea, WheelArea, EditRgb, EditHsv, EditBrushSize, CheckLine}) {
        DestroyWindow(Control(id));
    }
    SetField(&LM_Params::inkColor, 0x00123456);
    InvalidateRect(Dialog(), nullptr, TRUE);
    UpdateWindow(Dialog());
    SendMessageW(Dialog(), WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(Record().inkColor, 0x00123456U);
    EXPECT_EQ(Text(EditInkLife), "100");
}

TEST_F(SettingsDialogLife, ARepaintOnlyCopiesThePictures)
{
    Open();
    Hook<"CreateDIBSection", decltype(CreateDIBSection)> images(library.Module());
    Hooks calls(library.Module());
    calls.Record<"BitBlt">(BitBlt);
    InvalidateRect(Dialog(), nullptr, TRUE);
    UpdateWindow(Dialog());
    EXPECT_GT(images.Count(), 0U);
    EXPECT_EQ(images.Count(), calls.Count("BitBlt")); // a working copy for each showing, and no more
}

TEST_F(SettingsDialogLife, OfTwoHundredClosedDialogsOneIsKept)
{
    const auto useOnce = [this](bool painted) {
        if (painted) {
            Open();
        } else {
            Choose(SettingsCommand);
        }
        Input({Sample(100, 100), Sample(140, 120)});
        UpdateWindow(library.GetWindowHandle());
        SendMessageW(OpenDialogs().at(0), WM_SYSCOMMAND, SC_CLOSE, 0);
        PumpMessages();
    };
    constexpr int WarmUp = 20; // the system keeps brushes and contexts of its own, and what the last ones had
    constexpr int Painted = 30;
    constexpr int Unpainted = 150;
    for (int i = 0; i < WarmUp; ++i) {
        useOnce(i < WarmUp / 2);
    }
    const std::size_t before = GdiObjects();
    for (int i = 0; i < Painted + Unpainted; ++i) {
        useOnce(i < Painted);
    }
    EXPECT_EQ(GdiObjects(), before);
    EXPECT_EQ(AllDialogs().size(), 1U);
    EXPECT_THAT(OpenDialogs(), IsEmpty());
}

TEST_F(SettingsDialogLife, TheKeptDialogIsTheOneThatWasClosedLast)
{
    HWND first = OpenAndClose();
    HWND second = Open();
    EXPECT_TRUE(IsWindow(first));
    Close();
    EXPECT_FALSE(IsWindow(first));
    EXPECT_THAT(AllDialogs(), ElementsAre(second));
    EXPECT_FALSE(IsWindowVisible(second));
}

TEST_F(SettingsDialogLife, AKeptDialogOfAnEarlierBackEndGoesWithTheNextClose)
{
    HWND old = OpenAndClose();
    Rebuild();
    EXPECT_TRUE(IsWindow(old));
    HWND later = OpenAndClose();
    EXPECT_THAT(AllDialogs(), ElementsAre(later));
}

TEST_F(SettingsDialogLife, AKeptDialogThatTheHostDestroysIsForgotten)
{
    DestroyWindow(OpenAndClose());
    Hook<"DestroyWindow", decltype(DestroyWindow)> destroying(library.Module());
    OpenAndClose();
    EXPECT_EQ(destroying.Count(), 0U);
}

TEST_F(SettingsDialogLife, AKeptDialogThatWentWithItsOverlayIsForgotten)
{
    OpenAndClose();
    DestroyAndForget();
    CreateWithGDI();
    Hook<"DestroyWindow", decltype(DestroyWindow)> destroying(library.Module());
    OpenAndClose();
    EXPECT_EQ(destroying.Count(), 0U);
}

TEST_F(SettingsDialogLife, AKeptDialogThatCannotBeDestroyedIsLeft)
{
    Hook<"DestroyWindow", decltype(DestroyWindow)> destroying(library.Module());
    std::vector<HWND> refused;
    destroying.Answer([&](HWND window) { // as the system does with a window of another thread
        refused.push_back(window);
        return FALSE;
    });
    HWND left = OpenAndClose();
    OpenAndClose();
    EXPECT_THAT(refused, ElementsAre(left));
    OpenAndClose();
    EXPECT_THAT(refused, ElementsAre(left, testing::Ne(left))); // not the same one again
}

TEST_F(SettingsDialogLife, LeavesNothingWhenTheInstanceEnds)
{
    const auto liveOnce = [this] {
        CreateWithGDI();
        OpenAndClose();
        Open();
        DestroyAndForget();
    };
    constexpr int WarmUp = 3;
    for (int i = 0; i < WarmUp; ++i) {
        liveOnce();
    }
    const std::size_t before = GdiObjects();
    for (int i = 0; i < 5; ++i) {
        liveOnce();
    }
    EXPECT_EQ(GdiObjects(), before);
    EXPECT_THAT(AllDialogs(), IsEmpty());
}

} // namespace
} // namespace zq::LM::test
