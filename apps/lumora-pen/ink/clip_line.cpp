// The part of a line that lies in a rectangle, after Liang and Barsky.
#include "ink/clip_line.h"

#include <algorithm>
#include <cmath>

namespace lumora_pen {

namespace {

// The part of the way from 0 to 1 along the line.
struct Part {
    double from = 0;
    double to = 1;
};

// Keeps what lies on the inner side of one edge: `inwards` is how fast the line goes there, `depth` how deep
// in it begins. False when nothing is left.
bool KeepInside(Part& part, double inwards, double depth)
{
    if (inwards == 0) {
        return depth >= 0;
    }
    const double crossing = -depth / inwards;
    if (inwards > 0) {
        part.from = (std::max)(part.from, crossing);
    } else {
        part.to = (std::min)(part.to, crossing);
    }
    return part.from <= part.to;
}

} // namespace

std::optional<Line> ClipLine(const Line& line, const Bounds& bounds)
{
    const double across = line.x2 - line.x1;
    const double down = line.y2 - line.y1;
    if (!std::isfinite(across) || !std::isfinite(down)) {
        return std::nullopt;
    }
    Part part;
    if (!KeepInside(part, across, line.x1 - bounds.left) ||
        !KeepInside(part, -across, bounds.right - line.x1) || !KeepInside(part, down, line.y1 - bounds.top) ||
        !KeepInside(part, -down, bounds.bottom - line.y1)) {
        return std::nullopt;
    }
    const auto at = [](double begin, double way, double end, double share) {
        return share <= 0 ? begin : share >= 1 ? end : begin + way * share;
    };
    return Line{at(line.x1, across, line.x2, part.from), at(line.y1, down, line.y2, part.from),
                at(line.x1, across, line.x2, part.to), at(line.y1, down, line.y2, part.to)};
}

} // namespace lumora_pen
