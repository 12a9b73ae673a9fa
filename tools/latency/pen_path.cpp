// Where the pen of a measurement goes.
#include "latency/pen_path.h"

#include <algorithm>

namespace lumora::latency {

namespace {

constexpr std::int32_t Margin = 40;
constexpr std::int32_t StepLength = 24; // four times as wide as the ink
constexpr std::int32_t RowDistance = 24;

std::uint32_t CountOf(std::int32_t length, std::int32_t distance)
{
    return static_cast<std::uint32_t>(std::max(1, (length - 2 * Margin) / distance));
}

} // namespace

PenStep StepAt(std::uint32_t number, std::int32_t width, std::int32_t height)
{
    const std::uint32_t columns = CountOf(width, StepLength);
    const std::uint32_t rows = CountOf(height, RowDistance);
    const auto column = static_cast<std::int32_t>(number % columns);
    const auto row = static_cast<std::int32_t>(number / columns % rows);
    const Place from = {Margin + column * StepLength, Margin + row * RowDistance};
    return {from, {from.x + StepLength, from.y}, {from.x + StepLength / 2, from.y}, column == 0};
}

} // namespace lumora::latency
