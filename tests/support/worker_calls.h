// Watches what the brush-data server's worker asks of Winsock, with the server linked into the test program.
#pragma once

#include "support/hook/import_hook.h"

#include <winsock2.h>

#include <atomic>
#include <mutex>
#include <vector>

namespace zq::LM::test {

// Counts each of the worker's calls as it begins: those that are not made on the thread that this was made
// on. A receive that begins tells that the bytes of the one before lie in the server's buffer; an accept,
// that the client before is closed.
class WorkerCalls {
public:
    WorkerCalls();

    unsigned Accepts() const { return state.accepts; }
    unsigned Receives() const { return state.receives; }
    unsigned Closes() const { return state.closes; }

    // Fail the test when it does not come to so many.
    void WaitForAccepts(unsigned count) const { WaitFor_(state.accepts, count, "accepts"); }
    void WaitForReceives(unsigned count) const { WaitFor_(state.receives, count, "receives"); }

    SOCKET Listener() const { return state.listener; } // what the last accept was called on
    SOCKET Client() const { return state.client; }     // and the last receive
    std::vector<SOCKET> Closed() const;                // by hand, on any thread

private:
    struct State {
        State();
        bool IsWorker() const { return GetCurrentThreadId() != testThread; }

        const DWORD testThread = GetCurrentThreadId();
        std::atomic<unsigned> accepts = 0;
        std::atomic<unsigned> receives = 0;
        std::atomic<unsigned> closes = 0;
        std::atomic<SOCKET> listener = INVALID_SOCKET;
        std::atomic<SOCKET> client = INVALID_SOCKET;
        std::mutex mutex;
        std::vector<SOCKET> closed;
        Hook<"accept", decltype(::accept)> accept;
        Hook<"recv", decltype(::recv)> receive;
        Hook<"closesocket", decltype(::closesocket)> close;
    };

    static void WaitFor_(const std::atomic<unsigned>& counter, unsigned count, const char* calls);

    State& state; // never freed: a worker may be inside of a hook when its test ends
};

} // namespace zq::LM::test
