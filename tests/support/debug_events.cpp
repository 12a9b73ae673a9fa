// Hears the debugger's output of the whole process, by the events that it raises.
#include "support/debug_events.h"

#include <atomic>

namespace zq::LM::test {

namespace {

// The codes of narrow and of wide texts; not every SDK names them.
constexpr DWORD NarrowText = 0x40010006;
constexpr DWORD WideText = 0x4001000A;

std::atomic<int> g_events = 0;

LONG CALLBACK OnException(EXCEPTION_POINTERS* exception)
{
    const DWORD code = exception->ExceptionRecord->ExceptionCode;
    if (code != NarrowText && code != WideText) {
        return EXCEPTION_CONTINUE_SEARCH;
    }
    ++g_events;
    return EXCEPTION_CONTINUE_EXECUTION;
}

} // namespace

DebugEvents::DebugEvents() : handler(AddVectoredExceptionHandler(1, OnException)) { g_events = 0; }

DebugEvents::~DebugEvents() { RemoveVectoredExceptionHandler(handler); }

int DebugEvents::Count() const { return g_events; }

} // namespace zq::LM::test
