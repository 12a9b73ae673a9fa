// The rules that read single fields of the parameter record.
#include "ink/params.h"

#include "ink/truncation.h"

#include <algorithm>

namespace zq::LM {

std::uint32_t EnabledOptions(const Params& params, std::uint32_t mask)
{
    std::uint32_t enabled = 0;
    const auto add = [&enabled](std::uint8_t flag, std::uint32_t option) {
        enabled |= flag != 0 ? option : 0;
    };
    add(params.cursor, DrawOption::Cursor);
    add(params.line, DrawOption::Line);
    add(params.outline, DrawOption::Outline);
    add(params.zebraMode, DrawOption::ZebraMode);
    add(params.usePressure, DrawOption::Pressure);
    add(params.useOffset, DrawOption::Offset);
    add(params.colorPicker, DrawOption::ColorPicker);
    return enabled & mask;
}

std::uint32_t ContrastColour(std::uint32_t inkColor)
{
    constexpr std::uint32_t White = 0x00FFFFFF;
    constexpr std::uint32_t Black = 0x00000000;
    constexpr std::uint32_t FirstLightSum = 384; // half of 3 * 256
    const std::uint32_t sum = (inkColor & 0xFF) + ((inkColor >> 8) & 0xFF) + ((inkColor >> 16) & 0xFF);
    return sum < FirstLightSum ? White : Black;
}

std::uint32_t PressureWidth(const Params& params, std::int32_t pressure)
{
    const double share = static_cast<double>(pressure) / static_cast<double>(params.maxPressure);
    const std::uint32_t width = TruncateToUnsigned(share * static_cast<double>(params.brushSize) + 0.5);
    return std::min(std::max(width, params.minBrushSize), params.brushSize);
}

std::uint32_t SegmentWidth(const Params& params, std::int32_t pressure)
{
    return params.usePressure != 0 ? PressureWidth(params, pressure) : params.brushSize;
}

} // namespace zq::LM
