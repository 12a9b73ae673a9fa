// A hand-driven millisecond clock for tests that link the portable code.
#include "support/fake_clock.h"

#include "platform/clock.h"

#include <atomic>

namespace zq::LM {

namespace {

std::atomic<std::uint32_t> g_now{1000};

} // namespace

std::uint32_t MillisecondClock() { return g_now; }

namespace test {

void SetClock(std::uint32_t milliseconds) { g_now = milliseconds; }
void AdvanceClock(std::uint32_t milliseconds) { g_now += milliseconds; }

} // namespace test

} // namespace zq::LM
