// The library built with its debug switch on: it logs from the start and leaves its user interface alone.
#include "support/hook/hooks.h"
#include "support/hook/import_hook.h"
#include "support/library/overlay_test.h"

namespace zq::LM {
namespace {

using test::Hook;
using test::LogLine;
using test::OverlayTest;
using Lines = std::vector<LogLine>;

class DebugSwitch : public OverlayTest {
protected:
    Hook<"RegisterHotKey", decltype(RegisterHotKey)> hotkeys{library.Module()};
};

TEST_F(DebugSwitch, LogsAtLevelOneFromTheStart)
{
    library.GetWindowHandle();
    library.InputPenDataArray(nullptr, 0); // level 2
    EXPECT_EQ(debugger.Lines(), (Lines{{true, "zq::CallFunc::GetWindowHandle\n"}}));
}

TEST_F(DebugSwitch, HasBothLinesOfTheFirstSetLevel)
{
    library.SetDebugLevel(1);
    EXPECT_EQ(debugger.Lines(),
              (Lines{{true, "zq::CallFunc::SetDebugLevel\n"}, {true, "Debug level set\n"}}));
}

TEST_F(DebugSwitch, CanBeSilenced)
{
    library.SetDebugLevel(0);
    debugger.Clear();
    library.Create();
    EXPECT_EQ(debugger.Lines(), Lines{});
}

TEST_F(DebugSwitch, CreatesNoUserInterfaceByItself)
{
    EXPECT_NE(library.Create(), nullptr);
    EXPECT_EQ(hotkeys.Count(), 0U);
}

TEST_F(DebugSwitch, MarksTheInformationOverlayAndMovesItsLinesDown)
{
    CreateWithGDI();
    test::Hooks calls{library.Module()};
    calls.Record<"SetTextColor">(SetTextColor);
    calls.Record<"TextOutW">(TextOutW);
    InputNothing();
    Paint();
    EXPECT_THAT(calls.Take(),
                testing::IsSupersetOf({"SetTextColor(*, 255)", "TextOutW(*, 310, 32, \"(DEBUG_)\", 8)",
                                       "TextOutW(*, 310, 56, \"DLL Menu : Ctrl + Alt + Shirt + S\", 33)",
                                       "TextOutW(*, 310, 224, \"Pressure =     0\", 16)"}));
}

TEST_F(DebugSwitch, LetsNoLevelTurnTheUserInterfaceOn)
{
    for (const std::uint32_t level : {1U, 2U, 255U}) {
        library.SetDebugLevel(level);
        EXPECT_NE(library.Create(), nullptr);
        EXPECT_EQ(hotkeys.Count(), 0U);
    }
}

} // namespace
} // namespace zq::LM
