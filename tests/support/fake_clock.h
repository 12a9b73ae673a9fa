// A hand-driven millisecond clock for tests that link the portable code.
#pragma once

#include <cstdint>

namespace zq::LM::test {

void SetClock(std::uint32_t milliseconds);
void AdvanceClock(std::uint32_t milliseconds);

} // namespace zq::LM::test
