// Where the pen of a measurement goes: along rows, in steps that are long enough for a pixel of their own
// between two samples.
#pragma once

#include <cstdint>

namespace lumora::latency {

struct Place {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

struct PenStep {
    Place from; // the sample before
    Place to;
    Place watched;          // only this step's ink reaches it
    bool beginsRow = false; // the stroke before has ended, and the pen begins at `from`
};

// The step of that number, from 0 on, on a screen of that size; after the last row the first one comes again,
// whose ink has gone.
PenStep StepAt(std::uint32_t number, std::int32_t width, std::int32_t height);

} // namespace lumora::latency
