// From an event of the mouse to the ink of whatever program writes with it.
#pragma once

#include "latency/framebuffer.h"
#include "latency/options.h"

#include <vector>

namespace lumora::latency {

// From each event to its pixel, in milliseconds, without those whose ink did not come in half a second. The
// program is there and has written nothing yet. Throws std::runtime_error.
std::vector<double> MeasureMouse(const MouseRoad& road, const Framebuffer& screen);

} // namespace lumora::latency
