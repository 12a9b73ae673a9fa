// What the server's worker leaves for the overlay's thread, on one thread and on two. ThreadSanitizer runs
// these without any suppression.
#include "settings/brush_data_exchange.h"

#include "support/two_threads.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>

namespace zq::LM {
namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int Rounds = 2000;

TEST(BrushDataExchange, GivesTheLastThatWasPutOnce)
{
    BrushDataExchange exchange;
    EXPECT_EQ(exchange.Take(), Bytes{});
    exchange.Put(Bytes{1, 2, 3, 4, 5});
    exchange.Put(Bytes{6});
    EXPECT_EQ(exchange.Take(), Bytes{6});
    EXPECT_EQ(exchange.Take(), Bytes{});
}

TEST(BrushDataExchange, DoesNotRunUntilItIsTold)
{
    BrushDataExchange exchange;
    EXPECT_FALSE(exchange.IsRunning());
    exchange.SetRunning(true);
    EXPECT_TRUE(exchange.IsRunning());
    exchange.SetRunning(false);
    EXPECT_FALSE(exchange.IsRunning());
}

// The worker's arrays differ in length and content, so a mixture would be seen.
TEST(BrushDataExchange, ArraysArriveWholeAndInOrder)
{
    BrushDataExchange exchange;
    std::uint8_t last = 0;
    test::RunBeside(
        Rounds,
        [&exchange](int round) {
            const auto value = static_cast<std::uint8_t>(round * 250 / Rounds + 1);
            exchange.Put(Bytes(value, value));
        },
        [&] {
            const Bytes taken = exchange.Take();
            if (taken.empty()) {
                return;
            }
            ASSERT_EQ(taken, Bytes(taken.size(), static_cast<std::uint8_t>(taken.size())));
            ASSERT_GE(taken[0], last);
            last = taken[0];
        });
    EXPECT_EQ(last, 251);
}

TEST(BrushDataExchange, AWorkerEndsWhenItIsToldTo)
{
    BrushDataExchange exchange;
    exchange.SetRunning(true);
    std::atomic<int> received{0};
    std::thread worker([&] {
        while (exchange.IsRunning()) {
            exchange.Put(Bytes(256, 1));
            received.fetch_add(1, std::memory_order_relaxed);
        }
    });
    while (received.load(std::memory_order_relaxed) < Rounds) {
        const Bytes taken = exchange.Take();
        EXPECT_TRUE(taken.empty() || taken.size() == 256);
    }
    exchange.SetRunning(false);
    worker.join();
    exchange.Take();
    EXPECT_EQ(exchange.Take(), Bytes{}); // nothing more comes
}

} // namespace
} // namespace zq::LM
