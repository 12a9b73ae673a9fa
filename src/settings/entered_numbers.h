// Numbers that a person types into the settings, and the limits that they are held within.
#pragma once

#include <cstdint>

namespace zq::LM {

inline constexpr std::uint32_t MostBrushSize = 200;     // pixels
inline constexpr std::uint32_t MostInkDecayTime = 1000; // milliseconds
inline constexpr std::uint32_t MostFramesPerSecond = 120;

// The whole number that a text begins with; 0 when it begins with none. What 32 bits cannot hold becomes the
// nearest number that they can. Limits compare it unsigned, so a negative number lies above all of them.
std::uint32_t EnteredNumber(const char* text);

// Never below the lower bound, not even where that lies above the most.
std::uint32_t LimitedBrushSize(std::uint32_t number, std::uint32_t lowerBound);

std::uint32_t LimitedInkDecayTime(std::uint32_t number);
std::uint32_t LimitedFramesPerSecond(std::uint32_t number);

} // namespace zq::LM
