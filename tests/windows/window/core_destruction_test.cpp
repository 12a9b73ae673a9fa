// The order in which a Core gives everything back.
#include "support/log_level.h"
#include "windows/window/core_window_test.h"
#include "windows/window/watched_frees.h"

#include <cstddef>
#include <new>

namespace zq::LM::test {

class CoreDestructionTest : public CoreWindowTest {
protected:
    ~CoreDestructionTest() override { StopWatchingFrees(); }

    // A Core that holds everything it can hold.
    HWND CreateFull()
    {
        g_userInterfaceSwitch = true;
        RecordDestruction();
        RecordHotkey();
        RecordTray();
        HWND window = CreateWindowed(RenderingType::GDI);
        core->SetParamsView(std::make_unique<TracedView>());
        calls.Take();
        WatchFreeOfSize(sizeof(Drawing), "engine freed");
        WatchFree(core->Record(), "record freed");
        return window;
    }

    const Lines upToTheMenu = {
        "DeleteDC(memory dc)",
        "DeleteObject(bitmap)",
        "back-end 0 SetMemoryDC(null)",
        "back-end 1 SetMemoryDC(null)",
        "back-end 2 SetMemoryDC(null)",
        "engine freed",
        "record freed",
        "view destroyed",
        "Shell_NotifyIconW(2, *)",
        "DestroyIcon(icon)",
        "DestroyMenu(menu)",
    };
    const Lines backEnds = {"back-end 0 destroyed", "back-end 1 destroyed", "back-end 2 destroyed"};

    Lines Expected(const Lines& ofTheWindow) const
    {
        Lines all = upToTheMenu;
        all.insert(all.end(), ofTheWindow.begin(), ofTheWindow.end());
        all.insert(all.end(), backEnds.begin(), backEnds.end());
        return all;
    }
};

TEST_F(CoreDestructionTest, WithALivingWindowHotkeyAndTimerAreTakenFromIt)
{
    HWND window = CreateFull();
    core.reset();
    EXPECT_EQ(calls.Take(), Expected({"UnregisterHotKey(window 1, 49443)", "GlobalDeleteAtom(49443)",
                                      "KillTimer(window 1, 12345)"}));
    EXPECT_TRUE(IsWindow(window));
    DestroyWindow(window);
}

TEST_F(CoreDestructionTest, WithADestroyedWindowOnlyTheAtomIsLeftToGiveBack)
{
    HWND window = CreateFull();
    DestroyWindow(window);
    EXPECT_EQ(calls.Take(), Lines{});
    core.reset();
    EXPECT_EQ(calls.Take(), Expected({"GlobalDeleteAtom(49443)"}));
}

TEST_F(CoreDestructionTest, WithoutAWindowThereIsNothingOfAWindowToGiveBack)
{
    RecordDestruction();
    RecordHotkey();
    MakeCore(RenderingType::GDI);
    calls.Take();
    core.reset();
    EXPECT_EQ(calls.Take(), (Lines{"back-end 0 SetMemoryDC(null)", "back-end 1 SetMemoryDC(null)",
                                   "back-end 2 SetMemoryDC(null)", "back-end 0 destroyed",
                                   "back-end 1 destroyed", "back-end 2 destroyed"}));
}

TEST_F(CoreDestructionTest, AWindowThatOutlivesItsCoreReachesItNoMore)
{
    // In memory of the test's own, which still holds the window's handle when the Core has ended.
    alignas(Core) std::byte memory[sizeof(Core)];
    g_renderingType = RenderingType::DirectComposition;
    Core* ended = new (memory) Core(Program(), 0U);
    HWND window = ended->CreateOverlayWindow();
    ended->~Core();

    const LogLevel all(ALL);
    calls.RecordLog();
    calls.Take();
    for (const UINT message :
         {UINT{WM_TIMER}, UINT{WM_COMMAND}, UINT{WM_HOTKEY}, UINT{WM_APP + 46}, UINT{WM_PAINT}}) {
        SendMessageW(window, message, 0, 0);
    }
    EXPECT_EQ(calls.Take(), Lines{});
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE));
    DestroyWindow(window);
    EXPECT_FALSE(PumpMessages());
}

TEST_F(CoreDestructionTest, MissingBackEndsAreSkipped)
{
    MakeCore(RenderingType::GDI);
    core->AllBackEnds()[0].reset();
    core->AllBackEnds()[2].reset();
    calls.Take();
    core.reset();
    EXPECT_EQ(calls.Take(), (Lines{"back-end 1 SetMemoryDC(null)", "back-end 1 destroyed"}));
}

} // namespace zq::LM::test
