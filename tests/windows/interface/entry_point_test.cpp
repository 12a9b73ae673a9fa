// Loading and unloading the library, and threads that come and go while it is loaded.
#include "support/debug_events.h"
#include "support/overlay_test.h"

#include <memory>
#include <thread>

namespace zq::LM {
namespace {

using test::DebugEvents;
using test::DebuggerStandIn;
using test::Library;
using test::LogLine;
using test::OverlayTest;

TEST(EntryPoint, LoadingAndUnloadingIsSilent)
{
    const DebugEvents events;
    {
        const Library library;
    }
    EXPECT_EQ(events.Count(), 0);
    OutputDebugStringW(L"heard");
    OutputDebugStringA("heard");
    EXPECT_EQ(events.Count(), 2);
}

TEST(EntryPoint, UnloadingHasItsLineAtLevelTwo)
{
    auto library = std::make_unique<Library>();
    // Never taken back: the library is gone by then.
    auto* debugger = new DebuggerStandIn(library->Module());
    library->SetDebugLevel(2);
    debugger->Clear();
    library.reset();
    EXPECT_EQ(GetModuleHandleW(L"LumoraDLL.dll"), nullptr);
    EXPECT_EQ(debugger->Lines(), (std::vector<LogLine>{{true, "ul_reason_for_call = DLL_PROCESS_DETACH\n"}}));
}

TEST(EntryPoint, UnloadingIsSilentAtLevelOne)
{
    auto library = std::make_unique<Library>();
    auto* debugger = new DebuggerStandIn(library->Module());
    library->SetDebugLevel(1);
    debugger->Clear();
    library.reset();
    EXPECT_EQ(debugger->Lines(), std::vector<LogLine>{});
}

TEST(EntryPoint, ALibraryThatIsLoadedAgainStartsAtLevelZeroWithoutAnInstance)
{
    {
        const Library library;
        library.SetDebugLevel(1);
        library.Create();
        library.Destroy();
        test::PumpMessages();
    }
    const Library library;
    const DebuggerStandIn debugger(library.Module());
    EXPECT_EQ(library.GetWindowHandle(), nullptr);
    EXPECT_TRUE(debugger.Lines().empty());
}

TEST_F(OverlayTest, ThreadsThatComeAndGoAreNotLogged)
{
    library.SetDebugLevel(255);
    debugger.Clear();
    for (int i = 0; i < 3; ++i) {
        std::thread([] {}).join();
    }
    EXPECT_TRUE(debugger.Lines().empty());
}

TEST_F(OverlayTest, ThreadsThatCallTheLibraryAreNotLoggedEither)
{
    library.SetDebugLevel(1);
    debugger.Clear();
    std::thread([this] { library.GetWindowHandle(); }).join();
    EXPECT_EQ(debugger.Lines(), (std::vector<LogLine>{{true, "zq::CallFunc::GetWindowHandle\n"}}));
}

} // namespace
} // namespace zq::LM
