// What the measuring program and a host under Wine share: a file that both have in their memory, so that
// neither waits for the other's system calls.
#pragma once

#include <atomic>
#include <cstdint>

namespace lumora::latency {

inline constexpr std::uint32_t ExchangeVersion = 1;
inline constexpr std::uint32_t MostSamples = 4096; // of a run

enum class Pace : std::uint32_t { Isolated, Stream };

// A sample that was handed over, and the pixel on which its ink is to be seen.
struct Given {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int64_t time = 0; // nanoseconds of the monotonic clock that no one adjusts, just before the call
};

// Written by one of the two each; a run begins when `wanted` changes and has ended when `done` is the same.
struct Exchange {
    std::atomic<std::uint32_t> version;
    std::atomic<std::uint32_t> wanted; // by the measuring program: the run's number; 0 at the start
    Pace pace;
    std::uint32_t sampleCount;
    std::atomic<std::uint32_t> quits; // by the measuring program: the host is to end

    std::atomic<std::uint32_t> isReady; // by the host: it shows its overlay
    std::atomic<std::uint32_t> given;   // by the host: how many of `samples` are written
    std::atomic<std::uint32_t> done;    // by the host
    Given samples[MostSamples];
};

static_assert(std::atomic<std::uint32_t>::is_always_lock_free, "two programs share it");
static_assert(sizeof(Given) == 16 && sizeof(Exchange) == 32 + MostSamples * sizeof(Given),
              "the same for both compilers");

} // namespace lumora::latency
