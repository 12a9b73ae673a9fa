// The millisecond clock: one of the two seams to the system.
#pragma once

#include <cstdint>

namespace zq::LM {

// Milliseconds since the system started. It wraps after 49.7 days, which no reader handles.
std::uint32_t MillisecondClock();

} // namespace zq::LM
