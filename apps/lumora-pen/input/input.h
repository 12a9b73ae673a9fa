// What a pen or a mouse says, whichever road it came by.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace lumora_pen {

inline constexpr std::int32_t FullPressure = 32767; // the library's default

struct InputSample {
    double x = 0; // pixels of the screen, where the first monitor begins at (0, 0), and their fractions
    double y = 0;
    std::int32_t pressure = 0; // 1 to FullPressure touches, 0 hovers or has left
    std::uint32_t time = 0;    // milliseconds of the system's clock, which wraps
};

// Who writes: a pen or finger by a number of its own, or the mouse.
using Source = std::uint32_t;
inline constexpr Source Mouse = 0xFFFFFFFF;

// What one message brought, oldest first.
struct InputBatch {
    Source source = Mouse;
    std::vector<InputSample> samples;
    bool isCancelled = false; // the stroke in the making was not meant: a palm, a lost capture
};

using TakeInput = std::function<void(const InputBatch&)>;

} // namespace lumora_pen
