// A stroke of the host's own document: the ink that stays. Needs no Windows either.
#pragma once

#include "lumora/params.hpp"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace pen_host {

struct InkPoint {
    int x = 0; // pixels of the window, with which the ink moves
    int y = 0;
    int width = 0;
    std::uint32_t time = 0; // when it came
};

struct Stroke {
    lumora::Colour colour;
    std::vector<InkPoint> points;
    std::size_t dryCount = 0; // so many points, from the first, are drawn by the host
};

// Ink darkens as it dries, so that the hand-over from Lumora to the host can be seen. A host that wants
// nobody to notice it takes the same colour.
inline lumora::Colour DryColour(const lumora::Colour& wet)
{
    const auto half = [](std::uint8_t part) { return static_cast<std::uint8_t>(part / 2); };
    return {half(wet.red), half(wet.green), half(wet.blue)};
}

// As wide as Lumora draws it, so that dry ink lies exactly under wet ink.
inline int StrokeWidth(const lumora::Params& ink, std::int32_t pressure)
{
    const double full = ink.brushSize;
    const double share = ink.usePressure && ink.maxPressure != 0 ? full * pressure / ink.maxPressure : full;
    return static_cast<int>((std::min)((std::max)(share + 0.5, double{1} * ink.minBrushSize), full));
}

// Dries the points that have reached this age.
inline void Dry(Stroke& stroke, std::uint32_t now, std::uint32_t age)
{
    while (stroke.dryCount < stroke.points.size() && now - stroke.points[stroke.dryCount].time >= age) {
        ++stroke.dryCount;
    }
}

} // namespace pen_host
