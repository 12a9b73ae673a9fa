// From an event of the mouse to the ink of whatever program writes with it.
#pragma once

#include "latency/framebuffer.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lumora::latency {

struct MouseRoad {
    std::vector<std::string> heldKeys; // while it writes
    unsigned button = 0;               // held while it writes; 0: none
    std::uint32_t samples = 120;
};

// From each event to its pixel, in milliseconds, without those whose ink did not come in half a second. The
// program is there and has written nothing yet. Throws std::runtime_error.
std::vector<double> MeasureMouse(const MouseRoad& road, const Framebuffer& screen);

} // namespace lumora::latency
