// The pointer of the Board: a cross that is seen on any ground.
#pragma once

#include <cstdint>
#include <vector>

namespace lumora_pen {

// As CreateCursor takes it: a bit a pixel, the leftmost the highest, rows of whole 16 bits. The cross is
// black with a white edge; the system's own inverts what lies below, which on grey cannot be seen.
struct CursorMasks {
    std::vector<std::uint8_t> keep;  // set: what lies below stays
    std::vector<std::uint8_t> white; // set: white where nothing is kept
    int hotX = 0;
    int hotY = 0;
};

CursorMasks CrossMasks(int width, int height);

} // namespace lumora_pen
