// How wide the library draws.
#pragma once

#include "lumora/params.hpp"

#include <algorithm>
#include <cstdint>

namespace lumora_pen {

// Of the segment that ends at a sample of this pressure: whole pixels, so that dry ink lies exactly under wet
// ink.
inline int InkWidth(const lumora::Params& ink, std::int32_t pressure)
{
    const bool isFelt = ink.usePressure && ink.maxPressure != 0;
    const double share = isFelt ? static_cast<double>(pressure) / ink.maxPressure : 1.0;
    const double wanted = (std::max)(ink.brushSize * share + 0.5, static_cast<double>(ink.minBrushSize));
    return static_cast<int>((std::min)(wanted, static_cast<double>(ink.brushSize)));
}

} // namespace lumora_pen
