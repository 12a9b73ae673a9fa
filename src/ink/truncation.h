// Conversions of doubles to 32-bit integers that are defined for every input.
#pragma once

#include <cstdint>
#include <limits>

namespace zq::LM {

// Truncates toward zero; what lies outside saturates, and not-a-number gives 0.
inline std::uint32_t TruncateToUnsigned(double value)
{
    if (!(value > 0.0)) {
        return 0;
    }
    constexpr std::uint32_t Most = std::numeric_limits<std::uint32_t>::max();
    return value >= static_cast<double>(Most) ? Most : static_cast<std::uint32_t>(value);
}

inline std::int32_t TruncateToSigned(double value)
{
    constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
    if (value != value) {
        return 0;
    }
    if (value <= static_cast<double>(Least)) {
        return Least;
    }
    return value >= static_cast<double>(Most) ? Most : static_cast<std::int32_t>(value);
}

} // namespace zq::LM
