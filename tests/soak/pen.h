// The scripted pen: a curve that is written in strokes, 300 samples a second.
#pragma once

#include "lumora/records.h"
#include "soak/random.h"

#include <windows.h>

#include <vector>

namespace zq::LM::soak {

class Pen {
public:
    static constexpr double SamplesASecond = 300;

    Pen(const RECT& area, Random& random);

    // Those that have come since the last question, at so many seconds after the first sample.
    std::vector<LM_PenData> Due(double seconds);

    // The pen at its last place, off the surface.
    LM_PenData Lifted() const;

    // A line through the middle of the area, beside the curve.
    std::vector<LM_PenData> Line() const;

private:
    LM_PenData Next_();

    RECT area;
    double turnsX;
    double turnsY;
    int strokeLength; // in samples, a fifth of which the pen hovers
    int number = 0;
    LM_PenData last{};
};

} // namespace zq::LM::soak
