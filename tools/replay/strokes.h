// Turns a recording into the samples that the library is fed with.
#pragma once

#include "lumora/records.h"
#include "placement.h"

#include <vector>

namespace lumora::replay {

struct TimedSample {
    double recordedTime = 0; // milliseconds since the recording's first sample
    LM_PenData data = {};
};

// Touching samples have a pressure of at least 1, hovering ones of 0. A stroke that no hovering sample ends
// gets one: at its last position and time.
std::vector<TimedSample> MakePenSamples(const Recording& recording, const Placement& placement);

} // namespace lumora::replay
