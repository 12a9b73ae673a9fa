// The clock that nobody adjusts, which is that of Wine's performance counter too.
#pragma once

#include <cstdint>
#include <ctime>

namespace lumora::latency {

inline constexpr std::int64_t NanosecondsPerSecond = 1'000'000'000;
inline constexpr double NanosecondsPerMillisecond = 1e6;

inline std::int64_t Now()
{
    timespec time = {};
    static_cast<void>(clock_gettime(CLOCK_MONOTONIC_RAW, &time)); // this clock is always there
    return time.tv_sec * NanosecondsPerSecond + time.tv_nsec;
}

} // namespace lumora::latency
