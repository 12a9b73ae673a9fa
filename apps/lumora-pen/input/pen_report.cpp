// Places and pressures of a pen's reports.
#include "input/pen_report.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace lumora_pen {

namespace {

constexpr unsigned MostBits = 32;

std::uint32_t LowBits(std::uint32_t bits, unsigned bitSize)
{
    return bitSize < MostBits ? bits & ((std::uint32_t{1} << bitSize) - 1) : bits;
}

// 0 at the range's least, 1 at its most.
double ShareOf(std::int32_t value, const LogicalRange& range)
{
    const double least = range.least;
    return (std::clamp<double>(value, least, range.most) - least) / (range.most - least);
}

std::int32_t PressureOf(const PenReport& report, const LogicalRange& range)
{
    if (!report.touches || report.isInverted) {
        return 0;
    }
    if (!report.pressure || !IsUsable(range)) {
        return FullPressure;
    }
    // However light a touch is, 0 would end the stroke.
    const auto scaled = std::lround(ShareOf(*report.pressure, range) * FullPressure);
    return (std::max)(static_cast<std::int32_t>(scaled), 1);
}

std::pair<double, double> Turned(double right, double down, Turn turn)
{
    switch (turn) {
    case Turn::Quarter:
        return {1 - down, right};
    case Turn::Half:
        return {1 - right, 1 - down};
    case Turn::ThreeQuarters:
        return {down, 1 - right};
    case Turn::None:
        break;
    }
    return {right, down};
}

// The range's ends are the display's first and last pixel, so that rounding leads out of neither.
double Between(std::int32_t first, std::int32_t end, double share)
{
    return first + share * (double{1} * end - 1 - first);
}

} // namespace

bool IsUsable(const LogicalRange& range) { return range.least < range.most; }

LogicalRange RangeOf(std::int32_t least, std::int32_t most, unsigned bitSize)
{
    if (least >= 0 && most < 0 && bitSize < MostBits) {
        most = static_cast<std::int32_t>(LowBits(static_cast<std::uint32_t>(most), bitSize));
    }
    return {least, most};
}

std::int32_t ValueOf(std::uint32_t bits, unsigned bitSize, const LogicalRange& range)
{
    std::uint32_t value = LowBits(bits, bitSize);
    const bool isNegative = bitSize > 0 && bitSize < MostBits && (value >> (bitSize - 1)) != 0;
    if (range.least < 0 && isNegative) {
        value |= ~std::uint32_t{0} << bitSize;
    }
    return static_cast<std::int32_t>(value);
}

std::optional<InputSample> PenReports::Take(const PenReport& report, const PenRanges& ranges,
                                            const PenPlace& place, std::uint32_t time)
{
    if (!report.isInRange && !report.touches) {
        return Leave(time);
    }
    if (!IsUsable(ranges.x) || !IsUsable(ranges.y) || place.display.IsEmpty()) {
        return std::nullopt;
    }
    InputSample sample = last.value_or(InputSample{});
    if (report.x && report.y) {
        const auto [right, down] =
            Turned(ShareOf(*report.x, ranges.x), ShareOf(*report.y, ranges.y), place.turn);
        sample.x = Between(place.display.left, place.display.right, right);
        sample.y = Between(place.display.top, place.display.bottom, down);
    } else if (!last) {
        return std::nullopt;
    }
    sample.pressure = PressureOf(report, ranges.pressure);
    sample.time = time;
    last = sample;
    return sample;
}

std::optional<InputSample> PenReports::Leave(std::uint32_t time)
{
    std::optional<InputSample> sample = std::exchange(last, std::nullopt);
    if (sample) {
        sample->pressure = 0;
        sample->time = time;
    }
    return sample;
}

} // namespace lumora_pen
