// The settings dialog beside a host that uses the C++ layer.
#include "library/cxx/layer_test.h"
#include "library/settings/settings_dialog_test.h"

namespace zq::LM::test {
namespace {

class LayerSettings : public SettingsDialogTest {
protected:
    void SetUp() override { overlay.emplace(OnGDI(), lumora::Library::Load()); }
    void TearDown() override { overlay.reset(); }

    static HWND OnlyDialog()
    {
        const std::vector<HWND> open = OpenDialogs();
        return open.size() == 1 ? open.front() : nullptr;
    }

    static MSG KeyFor(HWND window, WPARAM key) { return {window, WM_KEYDOWN, key, 1, 0, {}}; }

    std::optional<lumora::Overlay> overlay;
};

TEST_F(LayerSettings, OpenOnDemand)
{
    EXPECT_EQ(OnlyDialog(), nullptr);
    overlay->OpenSettings();
    EXPECT_NE(OnlyDialog(), nullptr);
}

TEST_F(LayerSettings, APersonsChangeSurvivesOneOfTheHost)
{
    Open();
    Click(CheckZebraMode);
    overlay->ChangeParams([](lumora::Params& params) { params.brushSize = 33; });
    const lumora::Params params = overlay->ReadParams();
    EXPECT_TRUE(params.zebraMode);
    EXPECT_EQ(params.brushSize, 33U);
}

TEST_F(LayerSettings, BrushDataChangesTheRecord)
{
    overlay->Send(lumora::MakeInkColor(0x00332211));
    EXPECT_EQ(overlay->ReadParams().inkColor, (lumora::Colour{0x11, 0x22, 0x33}));
}

TEST_F(LayerSettings, TheDialogGetsItsKeyboard)
{
    Open();
    SetFocus(Control(CheckCursor));
    MSG tab = KeyFor(Control(CheckCursor), VK_TAB);
    EXPECT_TRUE(overlay->HandleDialogMessage(tab));
    EXPECT_NE(GetFocus(), Control(CheckCursor));
    EXPECT_TRUE(IsChild(Dialog(), GetFocus()));
}

TEST_F(LayerSettings, OtherWindowsKeepTheirs)
{
    Open();
    const Backdrop window({0, 0, 50, 50}, 0);
    MSG tab = KeyFor(window.Window(), VK_TAB);
    EXPECT_FALSE(overlay->HandleDialogMessage(tab));
    MSG ofTheThread = KeyFor(nullptr, VK_TAB);
    EXPECT_FALSE(overlay->HandleDialogMessage(ofTheThread));
}

TEST_F(LayerSettings, WithoutAnInstanceNoMessageIsServed)
{
    Open();
    library.Destroy();
    MSG tab = KeyFor(GetDesktopWindow(), VK_TAB);
    EXPECT_FALSE(overlay->HandleDialogMessage(tab));
}

} // namespace
} // namespace zq::LM::test
