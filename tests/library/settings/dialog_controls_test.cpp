// The settings dialog's check boxes, trackbars, edits and texts, and the record behind them.
#include "library/settings/settings_dialog_test.h"

#include "support/hook/hooks.h"

#include <cstring>

namespace zq::LM::test {
namespace {

using ::testing::ElementsAre;

bool Same(const LM_Params& one, const LM_Params& other)
{
    return std::memcmp(&one, &other, sizeof(LM_Params)) == 0;
}

TEST_F(SettingsDialogTest, ShowsTheRecordWhenItOpens)
{
    LM_Params params = Params();
    params.brushSize = 33;
    params.inkDecayTime = 444;
    params.inkColor = 0x00804020;
    params.line = 0;
    params.zebraMode = 7; // any value but 0 is checked
    SetParams(params);
    Open();
    EXPECT_FALSE(IsChecked(CheckLine));
    EXPECT_TRUE(IsChecked(CheckCursor));
    EXPECT_FALSE(IsChecked(CheckOutline));
    EXPECT_TRUE(IsChecked(CheckZebraMode));
    EXPECT_TRUE(IsChecked(CheckPressure));
    EXPECT_FALSE(IsChecked(CheckOffset));
    EXPECT_EQ(Text(EditBrushSize), "33");
    EXPECT_EQ(Position(TrackbarBrushSize), 33);
    EXPECT_EQ(Text(EditInkLife), "444");
    EXPECT_EQ(Position(TrackbarInkLife), 444);
    EXPECT_EQ(Text(EditFramesPerSecond), "60");
    EXPECT_EQ(Position(TrackbarFramesPerSecond), 60);
    EXPECT_TRUE(Same(Record(), params)); // showing changes nothing
}

TEST_F(SettingsDialogTest, TheDefaultColourReads32)
{
    Open();
    EXPECT_EQ(Text(EditHsv), "(  0,   0,  32)");
    EXPECT_EQ(Text(EditRgb), "( 32,  32,  32)");
}

TEST_F(SettingsDialogTest, PureColoursReadAsTheirHues)
{
    Open();
    for (const auto& [colour, shown] :
         {std::pair(0x000000FFU, "(  0, 255, 255)"), std::pair(0x0000FF00U, "(120, 255, 255)"),
          std::pair(0x00FF0000U, "(240, 255, 255)")}) {
        SetField(&LM_Params::inkColor, colour);
        EXPECT_EQ(Text(EditHsv), shown);
    }
}

TEST_F(SettingsDialogTest, TextsTruncateWhereTheStoredColourRounds)
{
    OpenWithColour(0x00C02040); // converts to a green of just under 32 and back
    EXPECT_EQ(Text(EditRgb), "( 64,  31, 192)");
    EXPECT_EQ(Record().inkColor, 0x00C02040U);
}

TEST_F(SettingsDialogTest, TheTrackbarsHaveTheirRangesTicksAndPages)
{
    Open();
    const auto expect = [&](int id, LRESULT most, LRESULT step) {
        EXPECT_EQ(SendMessageW(Control(id), TBM_GETRANGEMIN, 0, 0), 0);
        EXPECT_EQ(SendMessageW(Control(id), TBM_GETRANGEMAX, 0, 0), most);
        EXPECT_EQ(SendMessageW(Control(id), TBM_GETPAGESIZE, 0, 0), step);
        EXPECT_EQ(SendMessageW(Control(id), TBM_GETNUMTICS, 0, 0), most / step + 1);
    };
    expect(TrackbarBrushSize, 200, 10);
    expect(TrackbarInkLife, 1000, 100);
    expect(TrackbarFramesPerSecond, 120, 10);
}

TEST_F(SettingsDialogTest, TrackbarsAreSetUpInOrder)
{
    Open();
    Hooks calls(library.Module());
    calls.Name(Dialog(), "dialog");
    calls.Record<"SendDlgItemMessageW">(SendDlgItemMessageW);
    Type(EditFramesPerSecond, "70"); // sets all of them up, whatever the number
    const std::string dialog = "SendDlgItemMessageW(dialog, ";
    // Range with redraw, ticks, page, position with redraw.
    EXPECT_THAT(calls.Take(),
                ElementsAre(dialog + "1018, 1030, 1, 0xC80000)", dialog + "1018, 1044, 10, 0)",
                            dialog + "1018, 1045, 0, 10)", dialog + "1018, 1029, 1, 10)",
                            dialog + "1020, 1030, 1, 0x3E80000)", dialog + "1020, 1044, 100, 0)",
                            dialog + "1020, 1045, 0, 100)", dialog + "1020, 1029, 1, 100)",
                            dialog + "1028, 1030, 1, 0x780000)", dialog + "1028, 1044, 10, 0)",
                            dialog + "1028, 1045, 0, 10)", dialog + "1028, 1029, 1, 70)"));
}

TEST_F(SettingsDialogTest, EachCheckBoxChangesItsOwnFlag)
{
    Open();
    const std::vector<std::pair<int, std::uint8_t LM_Params::*>> boxes = {
        {CheckLine, &LM_Params::line},
        {CheckCursor, &LM_Params::cursor},
        {CheckOutline, &LM_Params::outline},
        {CheckZebraMode, &LM_Params::zebraMode},
        {CheckPressure, &LM_Params::usePressure},
        {CheckOffset, &LM_Params::useOffset},
    };
    for (const auto& [id, flag] : boxes) {
        for (int click = 1; click <= 2; ++click) {
            LM_Params expected = Record();
            expected.*flag = expected.*flag == 0 ? 1 : 0;
            Click(id);
            EXPECT_TRUE(Same(Record(), expected)) << id << ", click " << click;
        }
    }
}

TEST_F(SettingsDialogTest, ABrushSizeAbove200IsStoredAs200AndTheTrackbarFollows)
{
    Open();
    Type(EditBrushSize, "250");
    EXPECT_EQ(Record().brushSize, 200U);
    EXPECT_EQ(Position(TrackbarBrushSize), 200);
    EXPECT_EQ(Text(EditBrushSize), "250"); // what was typed stays
}

TEST_F(SettingsDialogTest, AClickOnACheckBoxStoresTheBrushSizeAsItWasTyped)
{
    Open();
    Type(EditBrushSize, "250");
    Click(CheckZebraMode);
    EXPECT_EQ(Record().brushSize, 250U);
}

TEST_F(SettingsDialogTest, ACommandOfTheBrushTrackbarCountsAsAClickOnACheckBox)
{
    Open();
    Type(EditBrushSize, "250");
    SendMessageW(Dialog(), WM_COMMAND, TrackbarBrushSize, 0);
    EXPECT_EQ(Record().brushSize, 250U);
}

TEST_F(SettingsDialogTest, ABrushTrackbarAtZeroEndsAtTheLowerBound)
{
    Open();
    MoveTrackbar(TrackbarBrushSize, 0);
    EXPECT_EQ(Text(EditBrushSize), "0"); // its change stored the bound
    EXPECT_EQ(Record().brushSize, 1U);
    EXPECT_EQ(Position(TrackbarBrushSize), 1);
}

TEST_F(SettingsDialogTest, AnInkLifeAbove1000IsStoredAs1000)
{
    Open();
    Type(EditInkLife, "5000");
    EXPECT_EQ(Record().inkDecayTime, 1000U);
    EXPECT_EQ(Position(TrackbarInkLife), 1000);
    EXPECT_EQ(Text(EditInkLife), "5000");
    Type(EditInkLife, "0");
    EXPECT_EQ(Record().inkDecayTime, 0U);
}

TEST_F(SettingsDialogTest, AnEmptyEditChangesNothing)
{
    Open();
    Type(EditBrushSize, "");
    Type(EditInkLife, "");
    EXPECT_EQ(Record().brushSize, 10U);
    EXPECT_EQ(Record().inkDecayTime, 100U);
}

TEST_F(SettingsDialogTest, AnEditIsReadUpTo127Characters)
{
    Open();
    Type(EditBrushSize, std::string(125, ' ') + "157"); // the third digit is the 128th character
    EXPECT_EQ(Record().brushSize, 15U);
}

TEST_F(SettingsDialogTest, OnlyAChangeOfAnEditCounts)
{
    Open();
    for (const int notification : {EN_SETFOCUS, EN_KILLFOCUS, EN_UPDATE, EN_MAXTEXT}) {
        Hooks calls(library.Module());
        calls.Record<"GetDlgItemTextA">(GetDlgItemTextA);
        SendMessageW(Dialog(), WM_COMMAND, MAKEWPARAM(EditBrushSize, notification), 0);
        EXPECT_EQ(calls.Count("GetDlgItemTextA"), 0U) << notification;
    }
}

TEST_F(SettingsDialogTest, TheFrameRateStaysInTheDialog)
{
    Open();
    const LM_Params before = Record();
    EXPECT_FALSE(IsWindowEnabled(Control(TrackbarFramesPerSecond)));
    EXPECT_FALSE(IsWindowEnabled(Control(EditFramesPerSecond)));
    Type(EditFramesPerSecond, "500");
    EXPECT_EQ(Position(TrackbarFramesPerSecond), 120);
    EXPECT_TRUE(Same(Record(), before));
    Close();
    Open();
    EXPECT_EQ(Text(EditFramesPerSecond), "120"); // kept by the object, not by the window
}

TEST_F(SettingsDialogTest, ATrackbarsMoveStoresAllThree)
{
    Open();
    SendMessageW(Control(TrackbarInkLife), TBM_SETPOS, TRUE, 700);
    SendMessageW(Control(TrackbarFramesPerSecond), TBM_SETPOS, TRUE, 30);
    MoveTrackbar(TrackbarBrushSize, 45);
    EXPECT_EQ(Record().brushSize, 45U);
    EXPECT_EQ(Text(EditBrushSize), "45");
    EXPECT_EQ(Record().inkDecayTime, 700U);
    EXPECT_EQ(Text(EditInkLife), "700");
    EXPECT_EQ(Text(EditFramesPerSecond), "30");
}

TEST_F(SettingsDialogTest, WithALowerBoundAbove200TheOtherTrackbarsMove)
{
    SetField(&LM_Params::minBrushSize, 300);
    Open();
    MoveTrackbar(TrackbarInkLife, 700);
    EXPECT_EQ(Record().inkDecayTime, 700U);
    EXPECT_EQ(Position(TrackbarInkLife), 700);
    EXPECT_EQ(Text(EditInkLife), "700");
    MoveTrackbar(TrackbarFramesPerSecond, 30);
    EXPECT_EQ(Position(TrackbarFramesPerSecond), 30);
    EXPECT_EQ(Text(EditFramesPerSecond), "30");
    EXPECT_EQ(Record().brushSize, 300U);
}

TEST_F(SettingsDialogTest, FollowsParametersThatTheHostSets)
{
    Open();
    LM_Params params = Params();
    params.brushSize = 77;
    params.inkDecayTime = 321;
    params.inkColor = 0x00804020;
    params.outline = 1;
    SetParams(params);
    EXPECT_EQ(Text(EditBrushSize), "77");
    EXPECT_EQ(Position(TrackbarBrushSize), 77);
    EXPECT_EQ(Text(EditInkLife), "321");
    EXPECT_TRUE(IsChecked(CheckOutline));
    EXPECT_EQ(Text(EditRgb), "( 32,  64, 128)");
}

TEST_F(SettingsDialogTest, HoldsTheHostsNumbersWithinItsLimitsWhileItIsOpen)
{
    Open();
    LM_Params params = Params();
    params.brushSize = 300;
    params.inkDecayTime = 4'000'000'000;
    SetParams(params);
    EXPECT_EQ(Record().brushSize, 200U);
    EXPECT_EQ(Record().inkDecayTime, 1000U);
    EXPECT_EQ(Text(EditBrushSize), "300");
    EXPECT_EQ(Text(EditInkLife), "-294967296");
}

TEST_F(SettingsDialogTest, LeavesTheHostsNumbersAloneWhileItIsClosed)
{
    OpenAndClose();
    SetField(&LM_Params::brushSize, 300);
    EXPECT_EQ(Record().brushSize, 300U);
}

TEST_F(SettingsDialogTest, CarriesTheReservedFields)
{
    LM_Params params = Params();
    params.reserved0 = 0x12345678;
    params.reserved31 = 0x9A;
    SetParams(params);
    Open();
    Type(EditBrushSize, "20");
    Click(CheckOutline);
    MoveTrackbar(TrackbarInkLife, 300);
    const LM_Params record = Record();
    EXPECT_EQ(record.reserved0, 0x12345678U);
    EXPECT_EQ(record.reserved31, 0x9A);
}

TEST_F(SettingsDialogTest, BlackKeepsHueAndSaturation)
{
    OpenWithColour(0x00FF0000);
    SetField(&LM_Params::inkColor, 0);
    EXPECT_EQ(Text(EditHsv), "(240, 255,   0)");
    EXPECT_EQ(Text(EditRgb), "(  0,   0,   0)");
}

TEST_F(SettingsDialogTest, TheColourButtonRaisesItsFlagAndNothingElse)
{
    Open();
    LM_Params expected = Record();
    const std::string hsv = Text(EditHsv);
    Click(ButtonColorPicker);
    expected.colorPicker = 1;
    EXPECT_TRUE(Same(Record(), expected));
    EXPECT_EQ(Text(EditHsv), hsv);
    EXPECT_EQ(OpenDialogs().size(), 1U);
}

TEST_F(SettingsDialogTest, TheHiddenButtonsDoNothing)
{
    Open();
    const LM_Params before = Record();
    for (const int id : {IDOK, IDCANCEL}) {
        EXPECT_FALSE(IsWindowVisible(Control(id)));
        SendMessageW(Dialog(), WM_COMMAND, MAKEWPARAM(id, BN_CLICKED), reinterpret_cast<LPARAM>(Control(id)));
    }
    EXPECT_TRUE(Same(Record(), before));
    EXPECT_EQ(OpenDialogs().size(), 1U);
}

} // namespace
} // namespace zq::LM::test
