// Numbers that a person types into the settings, and the limits that they are held within.
#include "settings/entered_numbers.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace zq::LM {

std::uint32_t EnteredNumber(const char* text)
{
    constexpr int Decimal = 10;
    constexpr long long Least = std::numeric_limits<std::int32_t>::min();
    constexpr long long Most = std::numeric_limits<std::int32_t>::max();
    const long long number = std::strtoll(text, nullptr, Decimal); // saturates
    return static_cast<std::uint32_t>(std::clamp(number, Least, Most));
}

std::uint32_t LimitedBrushSize(std::uint32_t number, std::uint32_t lowerBound)
{
    return number < lowerBound ? lowerBound : std::min(number, MostBrushSize);
}

std::uint32_t LimitedInkDecayTime(std::uint32_t number) { return std::min(number, MostInkDecayTime); }

std::uint32_t LimitedFramesPerSecond(std::uint32_t number) { return std::min(number, MostFramesPerSecond); }

} // namespace zq::LM
