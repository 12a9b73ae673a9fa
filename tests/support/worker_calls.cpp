// Watches what the brush-data server's worker asks of Winsock.
#include "support/worker_calls.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace zq::LM::test {

namespace {

HMODULE Program() { return GetModuleHandleW(nullptr); }

} // namespace

WorkerCalls::WorkerCalls() : state(*new State) {}

WorkerCalls::State::State() : accept(Program()), receive(Program()), close(Program())
{
    accept.Before([this](SOCKET socket, sockaddr*, int*) {
        if (IsWorker()) {
            listener = socket;
            ++accepts;
        }
    });
    receive.Before([this](SOCKET socket, char*, int, int) {
        if (IsWorker()) {
            client = socket;
            ++receives;
        }
    });
    close.Before([this](SOCKET socket) {
        closes += IsWorker() ? 1 : 0;
        const std::lock_guard lock(mutex);
        closed.push_back(socket);
    });
}

std::vector<SOCKET> WorkerCalls::Closed() const
{
    const std::lock_guard lock(state.mutex);
    return state.closed;
}

void WorkerCalls::WaitFor_(const std::atomic<unsigned>& counter, unsigned count, const char* calls)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (counter < count) {
        if (std::chrono::steady_clock::now() > end) {
            FAIL() << "the worker made " << counter << " instead of " << count << " " << calls;
        }
        std::this_thread::yield();
    }
}

} // namespace zq::LM::test
