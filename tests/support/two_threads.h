// Two threads that run beside one another: the host's and the overlay's.
#pragma once

#include <atomic>
#include <thread>

namespace zq::LM::test {

// Runs `host` so many times on a thread of its own, while `overlay` runs here until the host is done. Each
// waits for the other when it is too far ahead, so that they really alternate. Relaxed counters order
// nothing: what the two share stays as unordered as it is.
template <class Host, class Overlay> void RunBeside(int rounds, Host host, Overlay overlay)
{
    constexpr int RoundsPerTurn = 4;
    std::atomic<int> turns{0};
    std::atomic<int> roundsDone{0};
    const auto waitFor = [](const std::atomic<int>& counter, int count) {
        while (counter.load(std::memory_order_relaxed) < count) {
            std::this_thread::yield();
        }
    };
    std::thread hostThread([&] {
        for (int round = 1; round <= rounds; ++round) {
            waitFor(turns, round / RoundsPerTurn);
            host(round);
            roundsDone.store(round, std::memory_order_relaxed);
        }
    });
    for (int turn = 1; roundsDone.load(std::memory_order_relaxed) < rounds; ++turn) {
        overlay();
        turns.store(turn, std::memory_order_relaxed);
        waitFor(roundsDone, turn < rounds ? turn : rounds);
    }
    hostThread.join();
    overlay();
}

} // namespace zq::LM::test
