// Where a recording's samples lie on the screen.
#pragma once

#include "recording.h"

#include <cstdint>

namespace lumora::replay {

struct ScreenSize {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

struct ScreenPoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

// Scales all samples of a recording into the middle of a screen: same factor in both directions, a margin
// around.
class Placement {
public:
    Placement(const Recording& recording, ScreenSize screenSize);

    // For a recording whose positions are the screen's pixels.
    static Placement OfPixels(bool yUpwards, ScreenSize screenSize);

    // Always on the screen and never at column or row 0, which the library takes for a reset.
    ScreenPoint Place(const RecordedSample& sample) const;

private:
    ScreenSize screen;
    double centreX = 0;
    double centreY = 0;
    double scaleX = 1;
    double scaleY = 1; // negative when the recording's y points upwards
};

} // namespace lumora::replay
