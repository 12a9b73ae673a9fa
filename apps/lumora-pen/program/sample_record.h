// Keeps what is written, for a file that lumora-replay plays.
#pragma once

#include "input/input.h"

#include "recording.h"

#include <cstdint>
#include <iosfwd>

namespace lumora_pen {

class SampleRecord {
public:
    // Up to the most that a recording can hold; what comes later is left out.
    void Add(const std::vector<InputSample>& samples);

    // In screen pixels and milliseconds. A recording of nothing is one too.
    void Write(std::ostream& output) const;

private:
    lumora::replay::Recording recording;
    std::uint32_t last = 0; // by the system's clock
    double time = 0;        // of the last sample, from the first on
};

} // namespace lumora_pen
