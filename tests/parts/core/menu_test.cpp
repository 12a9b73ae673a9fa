// The menu's commands that reach what the Core shows to a person.
#include "parts/core/core_test.h"

namespace zq::LM::test {

using CoreMenuTest = CoreTest;

TEST_F(CoreMenuTest, EverySettingsCommandOpensTheRecordsViewAndRepaints)
{
    constexpr WPARAM SettingsCommand = 40001;
    HWND window = CreateWindowed(RenderingType::GDI);
    calls.Record<"InvalidateRect">(InvalidateRect);
    calls.Name(window, "window 1");
    calls.Take();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(SendMessageW(window, WM_COMMAND, SettingsCommand, 0), 0);
        EXPECT_EQ(calls.Take(), (Lines{"view opened", "InvalidateRect(window 1, null, 0)"}));
    }
}

} // namespace zq::LM::test
