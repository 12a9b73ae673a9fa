// Compares a picture of strokes with where their ink must and must not be, whichever renderer drew them.
#pragma once

#include "support/screen/screen.h"

#include <windows.h>

#include <cstddef>
#include <vector>

namespace zq::LM::test {

// In pixels, to either side of an ideal edge: renderers take a pixel's position from its corner or its
// middle, round to the next one, and may smooth an edge over one pixel more.
inline constexpr double EdgeTolerance = 1.5;

struct Segment {
    POINT from;
    POINT to;
    int width;
};

struct Coverage {
    std::size_t missing = 0; // pixels well inside a segment, between its ends, that are not of its colour
    std::size_t stray = 0;   // pixels well outside all segments and their round ends that are not background
    std::size_t covered = 0; // pixels well inside that are of the colour
};

// What lies between is left open, round ends with it: not every renderer draws them.
Coverage Compare(const Picture& picture, const RECT& part, const std::vector<Segment>& segments, COLORREF ink,
                 COLORREF background);

} // namespace zq::LM::test
