// Scaling of recorded positions to the screen.
#include "placement.h"

#include <algorithm>
#include <cmath>

namespace lumora::replay {

namespace {

// The part of the shorter side that stays free on each edge.
constexpr double MarginShare = 0.08;

// Less than any unit of length resolves: metres, and parts of the page.
constexpr double SmallestExtent = 1e-9;

std::int32_t ToPixel(double position, std::int32_t size)
{
    return static_cast<std::int32_t>(std::clamp(std::round(position), 1.0, std::max(1.0, size - 1.0)));
}

} // namespace

Placement::Placement(const Recording& recording, ScreenSize screenSize) : screen(screenSize)
{
    if (recording.samples.empty()) {
        return;
    }
    const auto byX = [](const RecordedSample& a, const RecordedSample& b) { return a.x < b.x; };
    const auto byY = [](const RecordedSample& a, const RecordedSample& b) { return a.y < b.y; };
    const auto [left, right] = std::minmax_element(recording.samples.begin(), recording.samples.end(), byX);
    const auto [low, high] = std::minmax_element(recording.samples.begin(), recording.samples.end(), byY);
    const double recordedWidth = right->x - left->x;
    const double recordedHeight = high->y - low->y;
    centreX = left->x + recordedWidth / 2;
    centreY = low->y + recordedHeight / 2;

    // A recording without extent in one direction is scaled by the other; a single point stays a point.
    const double margin = MarginShare * std::min(screen.width, screen.height);
    const double byWidth = (screen.width - 2 * margin) / std::max(recordedWidth, SmallestExtent);
    const double byHeight = (screen.height - 2 * margin) / std::max(recordedHeight, SmallestExtent);
    scaleX = std::min(byWidth, byHeight);
    scaleY = recording.yUpwards ? -scaleX : scaleX;
}

Placement Placement::OfPixels(bool yUpwards, ScreenSize screenSize)
{
    Placement placement({}, screenSize);
    placement.centreX = screenSize.width / 2.0;
    placement.centreY = (yUpwards ? -screenSize.height : screenSize.height) / 2.0;
    placement.scaleY = yUpwards ? -1 : 1;
    return placement;
}

ScreenPoint Placement::Place(const RecordedSample& sample) const
{
    return {ToPixel(screen.width / 2.0 + (sample.x - centreX) * scaleX, screen.width),
            ToPixel(screen.height / 2.0 + (sample.y - centreY) * scaleY, screen.height)};
}

} // namespace lumora::replay
