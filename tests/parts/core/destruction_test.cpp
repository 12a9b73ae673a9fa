// The order in which a Core gives everything back.
#include "parts/core/core_test.h"
#include "support/log_level.h"

#include <cstddef>
#include <new>

namespace zq::LM::test {

namespace {

// Ends with the engine that it is given to as a callback.
class EngineEnd {
public:
    EngineEnd() = default;
    EngineEnd(EngineEnd&&) = default;
    EngineEnd(const EngineEnd&) = default;
    ~EngineEnd()
    {
        if (told.use_count() == 1) {
            Note("engine freed");
        }
    }
    void operator()(int, int, unsigned, unsigned, const char*) const {}

private:
    std::shared_ptr<int> told = std::make_shared<int>();
};

} // namespace

class CoreDestructionTest : public CoreTest {
protected:
    // A Core that holds everything it can hold.
    HWND CreateFull()
    {
        g_userInterfaceSwitch = true;
        RecordDestruction();
        RecordHotkey();
        RecordTray();
        HWND window = CreateWindowed(RenderingType::GDI);
        core->Ink().Engine()->SetDrawTextCallback(EngineEnd());
        calls.Take();
        return window;
    }

    const Lines upToTheMenu = {
        "DeleteDC(memory dc)",  "DeleteObject(bitmap)", "0: SetMemoryDC(null)", "1: SetMemoryDC(null)",
        "2: SetMemoryDC(null)", "engine freed",         "view destroyed",       "Shell_NotifyIconW(2, *)",
        "DestroyIcon(icon)",    "DestroyMenu(menu)",
    };
    const Lines backEnds = {"0: destroyed", "1: destroyed", "2: destroyed"};

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
    EXPECT_EQ(calls.Take(), (Lines{"0: SetMemoryDC(null)", "1: SetMemoryDC(null)", "2: SetMemoryDC(null)",
                                   "0: destroyed", "1: destroyed", "2: destroyed"}));
}

TEST_F(CoreDestructionTest, AWindowThatOutlivesItsCoreReachesItNoMore)
{
    // In memory of the test's own, which still holds the window's handle when the Core has ended.
    alignas(Core) std::byte memory[sizeof(Core)];
    g_renderingType = RenderingType::DirectComposition;
    Core* ended = new (memory) Core({.module = Program()}, makers);
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
    makers.backEnds[0] = makers.backEnds[2] = NoBackEnd;
    MakeCore();
    calls.Take();
    core.reset();
    EXPECT_EQ(calls.Take(), (Lines{"1: SetMemoryDC(null)", "1: destroyed"}));
}

} // namespace zq::LM::test
