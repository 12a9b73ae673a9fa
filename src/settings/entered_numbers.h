// Numbers that a person types into the settings, and the limits that they are held within.
#pragma once

#include <cstdint>

namespace zq::LM {

inline constexpr std::uint32_t MostBrushSize = 200;     // pixels
inline constexpr std::uint32_t MostInkDecayTime = 1000; // milliseconds
inline constexpr std::uint32_t MostFramesPerSecond = 120;

// The whole number that a text begins with; 0 when it begins with none. One beyond the signed range becomes
// that range's end. Without its sign a negative number is a huge one, which the upper limits cut.
std::uint32_t EnteredNumber(const char* text);

// Between the two limits. Where the lower bound lies above the most, a number below the bound becomes the
// bound, and any other the most.
std::uint32_t LimitedBrushSize(std::uint32_t number, std::uint32_t lowerBound);

std::uint32_t LimitedInkDecayTime(std::uint32_t number);
std::uint32_t LimitedFramesPerSecond(std::uint32_t number);

} // namespace zq::LM
