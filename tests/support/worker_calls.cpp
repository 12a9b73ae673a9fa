// Watches what the brush-data server's worker asks of Winsock.
#include "support/worker_calls.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>

namespace zq::LM::test {

namespace {

DWORD g_testThread = 0;
std::atomic<unsigned> g_accepts{0};
std::atomic<unsigned> g_receives{0};
std::atomic<unsigned> g_closes{0};
std::atomic<SOCKET> g_listener{INVALID_SOCKET};
std::mutex g_closedMutex;
std::vector<SOCKET> g_closed;

decltype(::accept)* g_accept = nullptr;
decltype(::recv)* g_receive = nullptr;
decltype(::closesocket)* g_close = nullptr;

bool IsWorker() { return GetCurrentThreadId() != g_testThread; }

SOCKET WSAAPI CountAccept(SOCKET listener, sockaddr* peer, int* size)
{
    if (IsWorker()) {
        g_listener = listener;
        ++g_accepts;
    }
    return g_accept(listener, peer, size);
}

int WSAAPI CountReceive(SOCKET client, char* bytes, int count, int flags)
{
    if (IsWorker()) {
        ++g_receives;
    }
    return g_receive(client, bytes, count, flags);
}

int WSAAPI NoteClose(SOCKET closed)
{
    if (IsWorker()) {
        ++g_closes;
    }
    const std::lock_guard lock(g_closedMutex);
    g_closed.push_back(closed);
    return g_close(closed);
}

void WaitFor(const std::atomic<unsigned>& counter, unsigned count, const char* calls)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (counter < count) {
        if (std::chrono::steady_clock::now() > end) {
            FAIL() << "the worker made " << counter << " instead of " << count << " " << calls;
        }
        std::this_thread::yield();
    }
}

HMODULE Program() { return GetModuleHandleW(nullptr); }

} // namespace

WorkerCalls::WorkerCalls()
    : accept(Program(), "WS2_32.dll", "accept", AsAddress(CountAccept)),
      receive(Program(), "WS2_32.dll", "recv", AsAddress(CountReceive)),
      close(Program(), "WS2_32.dll", "closesocket", AsAddress(NoteClose))
{
    g_testThread = GetCurrentThreadId();
    g_accepts = 0;
    g_receives = 0;
    g_closes = 0;
    g_closed.clear();
    g_accept = reinterpret_cast<decltype(::accept)*>(accept.Original());
    g_receive = reinterpret_cast<decltype(::recv)*>(receive.Original());
    g_close = reinterpret_cast<decltype(::closesocket)*>(close.Original());
}

unsigned WorkerCalls::Accepts() const { return g_accepts; }
unsigned WorkerCalls::Receives() const { return g_receives; }
unsigned WorkerCalls::Closes() const { return g_closes; }
void WorkerCalls::WaitForAccepts(unsigned count) const { WaitFor(g_accepts, count, "accepts"); }
void WorkerCalls::WaitForReceives(unsigned count) const { WaitFor(g_receives, count, "receives"); }
SOCKET WorkerCalls::Listener() const { return g_listener; }

std::vector<SOCKET> WorkerCalls::Closed() const
{
    const std::lock_guard lock(g_closedMutex);
    return g_closed;
}

} // namespace zq::LM::test
