// Compares a picture of strokes with where their ink must and must not be.
#include "library/back_ends/coverage.h"

#include <algorithm>
#include <cmath>

namespace zq::LM::test {

namespace {

// A pixel's middle, seen from a segment.
struct Position {
    double along;  // from the beginning, in pixels
    double across; // from the line, in pixels
    double length; // the segment's
};

Position PositionOf(int x, int y, const Segment& segment)
{
    constexpr double Middle = 0.5;
    const double dx = segment.to.x - segment.from.x;
    const double dy = segment.to.y - segment.from.y;
    const double length = std::hypot(dx, dy);
    const double px = x + Middle - segment.from.x;
    const double py = y + Middle - segment.from.y;
    return {(px * dx + py * dy) / length, std::abs(px * dy - py * dx) / length, length};
}

bool IsWellInside(int x, int y, const Segment& segment)
{
    const Position position = PositionOf(x, y, segment);
    return position.along >= EdgeTolerance && position.along <= position.length - EdgeTolerance &&
           position.across <= segment.width / 2.0 - EdgeTolerance;
}

bool IsWellOutside(int x, int y, const Segment& segment)
{
    const Position position = PositionOf(x, y, segment);
    const double beyond = std::max({0.0, -position.along, position.along - position.length});
    return std::hypot(beyond, position.across) > segment.width / 2.0 + EdgeTolerance;
}

} // namespace

Coverage Compare(const Picture& picture, const RECT& part, const std::vector<Segment>& segments, COLORREF ink,
                 COLORREF background)
{
    Coverage coverage;
    for (int y = part.top; y < part.bottom; ++y) {
        for (int x = part.left; x < part.right; ++x) {
            const auto within = [=](const Segment& segment) { return IsWellInside(x, y, segment); };
            const auto beside = [=](const Segment& segment) { return IsWellOutside(x, y, segment); };
            if (std::any_of(segments.begin(), segments.end(), within)) {
                ++(picture.At(x, y) == ink ? coverage.covered : coverage.missing);
            } else if (std::all_of(segments.begin(), segments.end(), beside)) {
                coverage.stray += picture.At(x, y) != background ? 1 : 0;
            }
        }
    }
    return coverage;
}

} // namespace zq::LM::test
