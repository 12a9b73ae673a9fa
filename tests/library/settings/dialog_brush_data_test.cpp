// Brush data while the settings dialog is open: the dialog shows it, and holds it within its limits.
#include "library/settings/settings_dialog_test.h"
#include "lumora/brush_data.h"

namespace zq::LM::test {
namespace {

class BrushDataInTheDialog : public SettingsDialogTest {
protected:
    void Set(lumora::BrushDataMessage message) { library.SetData_from_App(message.data(), message.size()); }
};

TEST_F(BrushDataInTheDialog, AColourShowsInTheSwatchAndTheTexts)
{
    Open();
    Set(lumora::MakeInkColor(0x00332211));
    EXPECT_EQ(Text(EditHsv), "(210, 170,  51)");
    InvalidateRect(Dialog(), nullptr, TRUE);
    UpdateWindow(Dialog());
    EXPECT_TRUE(SwatchShows(0x00332211));
}

TEST_F(BrushDataInTheDialog, ABrushSizeAboveTheDialogsMostBecomesTheMost)
{
    Open();
    Set(lumora::MakeBrushSize(1, 300));
    EXPECT_EQ(Record().brushSize, 200U);
    EXPECT_EQ(Position(TrackbarBrushSize), 200);
}

TEST_F(BrushDataInTheDialog, WithoutTheDialogABrushSizeHasNoMost)
{
    Set(lumora::MakeBrushSize(1, 300));
    EXPECT_EQ(Record().brushSize, 300U);
}

TEST_F(BrushDataInTheDialog, AMessageOfNoKindRefreshesTheDialogAllTheSame)
{
    Open();
    Type(EditBrushSize, "250");
    ASSERT_EQ(Text(EditBrushSize), "250");
    Set(lumora::MakeNothing());
    EXPECT_EQ(Text(EditBrushSize), "200"); // what the record holds
}

} // namespace
} // namespace zq::LM::test
