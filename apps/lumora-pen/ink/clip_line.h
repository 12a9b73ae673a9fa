// The part of a line that lies in a rectangle.
#pragma once

#include <optional>

namespace lumora_pen {

struct Line {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
};

struct Bounds {
    double left = 0;
    double top = 0;
    double right = 0;
    double bottom = 0;
};

// Nothing where they do not meet, and for positions that are no numbers.
std::optional<Line> ClipLine(const Line& line, const Bounds& bounds);

} // namespace lumora_pen
