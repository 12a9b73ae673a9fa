// The end of a settings dialog of the test program's own, whose record has gone before.
#include "settings/settings_dialog.h"

#include "support/library/library.h"
#include "support/library/object_counts.h"
#include "support/screen/screen.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zq::LM::test {
namespace {

// Memory that can be made to trap.
class TrappedRecord {
public:
    TrappedRecord()
        : record(static_cast<Params*>(
              VirtualAlloc(nullptr, sizeof(Params), MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE)))
    {
        *record = DefaultParams;
    }
    ~TrappedRecord() { VirtualFree(record, 0, MEM_RELEASE); }
    TrappedRecord(const TrappedRecord&) = delete;
    TrappedRecord& operator=(const TrappedRecord&) = delete;

    Params* Get() const { return record; }
    bool Trap() const
    {
        DWORD before = 0;
        return VirtualProtect(record, sizeof(Params), PAGE_NOACCESS, &before) != 0;
    }

private:
    Params* record;
};

class SettingsDialogEnd : public ::testing::Test {
protected:
    ~SettingsDialogEnd() override
    {
        DestroyWindow(owner);
        PumpMessages();
    }

    static HWND OpenDialog()
    {
        const std::vector<HWND> dialogs = WindowsOfClass(L"#32770");
        const auto shown = std::find_if(dialogs.begin(), dialogs.end(), IsWindowVisible);
        return shown != dialogs.end() ? *shown : nullptr;
    }

    // The template is the library's.
    Owned<SettingsDialog> Make()
    {
        Owned<SettingsDialog> dialog(new SettingsDialog(owner, library.Module()));
        dialog->SetRecord(record.Get());
        return dialog;
    }

    Library library;
    TrappedRecord record;
    HWND owner = CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr, nullptr,
                                 nullptr, nullptr);
};

TEST_F(SettingsDialogEnd, ClosesTheOpenWindowWithoutARecord)
{
    auto dialog = Make();
    dialog->Open();
    HWND window = OpenDialog();
    ASSERT_NE(window, nullptr);
    SettleScreen();
    ASSERT_TRUE(record.Trap());
    dialog.reset();
    EXPECT_TRUE(IsWindow(window));
    EXPECT_FALSE(IsWindowVisible(window));
    PumpMessages(); // what the closed window still gets
}

TEST_F(SettingsDialogEnd, ComesAfterThatOfItsOwner)
{
    auto dialog = Make();
    dialog->Open();
    HWND window = OpenDialog();
    ASSERT_NE(window, nullptr);
    DestroyWindow(owner);
    EXPECT_FALSE(IsWindow(window));
    ASSERT_TRUE(record.Trap());
    dialog.reset();
    PumpMessages();
}

TEST_F(SettingsDialogEnd, OfAnEarlierObjectLeavesALaterOneInPlace)
{
    auto earlier = Make();
    auto later = Make();
    earlier.reset();
    later->Open(); // its messages still reach it
    HWND window = OpenDialog();
    ASSERT_NE(window, nullptr);
    SendMessageW(window, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_FALSE(IsWindowVisible(window));
}

TEST_F(SettingsDialogEnd, ClosesItsWindowWhenALaterObjectIsThere)
{
    auto earlier = Make();
    earlier->Open();
    HWND window = OpenDialog();
    ASSERT_NE(window, nullptr);
    const auto later = Make();
    earlier.reset();
    EXPECT_FALSE(IsWindowVisible(window));
}

TEST_F(SettingsDialogEnd, WithoutARecordNothingIsShownAndNothingBreaks)
{
    const Owned<SettingsDialog> dialog(new SettingsDialog(owner, library.Module()));
    dialog->Refresh();
    dialog->Open();
    dialog->Refresh();
    HWND window = OpenDialog();
    ASSERT_NE(window, nullptr);
    SendMessageW(window, WM_COMMAND, 1015, 0);
    SendMessageW(window, WM_LBUTTONDOWN, 0, 0);
    SettleScreen();
    char text[16] = "unread";
    GetDlgItemTextA(window, 1019, text, sizeof(text));
    EXPECT_STREQ(text, "");
}

} // namespace
} // namespace zq::LM::test
