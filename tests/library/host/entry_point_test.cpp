// Loading and unloading the library, and threads that come and go while it is loaded.
#include "support/library/overlay_test.h"

#include <atomic>
#include <memory>
#include <thread>

namespace zq::LM {
namespace {

using test::DebuggerStandIn;
using test::Library;
using test::LogLine;
using test::OverlayTest;

// Counts what the whole process tells the debugger, by the events that it raises: also a library that is only
// being loaded, when nothing of it can be hooked yet.
class DebugEvents {
public:
    DebugEvents() : handler(AddVectoredExceptionHandler(1, OnException_)) { g_events = 0; }
    ~DebugEvents() { RemoveVectoredExceptionHandler(handler); }
    DebugEvents(const DebugEvents&) = delete;
    DebugEvents& operator=(const DebugEvents&) = delete;

    int Count() const { return g_events; }

private:
    static LONG CALLBACK OnException_(EXCEPTION_POINTERS* exception)
    {
        constexpr DWORD NarrowText = 0x40010006;
        constexpr DWORD WideText = 0x4001000A;
        const DWORD code = exception->ExceptionRecord->ExceptionCode;
        if (code != NarrowText && code != WideText) {
            return EXCEPTION_CONTINUE_SEARCH;
        }
        ++g_events;
        return EXCEPTION_CONTINUE_EXECUTION;
    }

    inline static std::atomic<int> g_events = 0;
    void* handler;
};

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

TEST(EntryPoint, UnloadingHasItsLineFromLevelTwoOn)
{
    const LogLine line = {true, "ul_reason_for_call = DLL_PROCESS_DETACH\n"};
    for (const std::uint32_t level : {1U, 2U}) {
        auto library = std::make_unique<Library>();
        DebuggerStandIn debugger(library->Module());
        library->SetDebugLevel(level);
        debugger.Clear();
        library.reset();
        EXPECT_EQ(GetModuleHandleW(L"LumoraDLL.dll"), nullptr);
        EXPECT_EQ(debugger.Lines(), level == 1 ? std::vector<LogLine>{} : std::vector{line});
    }
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

TEST_F(OverlayTest, ThreadsAreNotLoggedWhetherOrNotTheyCallTheLibrary)
{
    library.SetDebugLevel(255);
    debugger.Clear();
    std::thread([] {}).join();
    std::thread([this] { library.GetWindowHandle(); }).join();
    EXPECT_EQ(debugger.Lines(), (std::vector<LogLine>{{true, "zq::CallFunc::GetWindowHandle\n"}}));
}

} // namespace
} // namespace zq::LM
