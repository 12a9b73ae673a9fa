// The menu's commands that reach what the Core shows to a person.
#include "parts/core/core_test.h"

namespace zq::LM::test {

class CoreMenuTest : public CoreTest {
protected:
    static constexpr WPARAM SettingsCommand = 40001;
};

TEST_F(CoreMenuTest, TheSettingsCommandOpensTheRecordsViewAndRepaints)
{
    HWND window = CreateWindowed(RenderingType::GDI);
    calls.Record<"InvalidateRect">(InvalidateRect);
    calls.Name(window, "window 1");
    calls.Take();
    EXPECT_EQ(SendMessageW(window, WM_COMMAND, SettingsCommand, 0), 0);
    EXPECT_EQ(calls.Take(), (Lines{"view opened", "InvalidateRect(window 1, null, 0)"}));
}

TEST_F(CoreMenuTest, EverySettingsCommandAsksTheViewToOpen)
{
    HWND window = CreateWindowed(RenderingType::GDI);
    calls.Take();
    SendMessageW(window, WM_COMMAND, SettingsCommand, 0);
    SendMessageW(window, WM_COMMAND, SettingsCommand, 0);
    EXPECT_EQ(calls.Take(), (Lines{"view opened", "view opened"}));
}

} // namespace zq::LM::test
