// What a line callback decides before it hands a segment to a back-end.
#pragma once

#include <cstdint>

namespace zq::LM {

// Colours are 0xAABBGGRR: red in the low byte, alpha on top where a caller sets one.

// The transparent colour of the layered window: what is painted in it is see-through.
inline constexpr std::uint32_t g_colorKey = 0x00FF00FF;

// Stands in for an ink colour that equals the key, so that ink is never see-through.
inline constexpr std::uint32_t g_colorKeySubstitute = 0x00FE00FF;

inline constexpr std::uint32_t OpaqueAlpha = 0xFF000000;

// The colour of a segment from those of its ends. Not a mean of channels: an OR where a mean has a sum, and a
// shift over all 32 bits that carries across channels. Equal colours give that colour.
constexpr std::uint32_t MixColors(std::uint32_t c1, std::uint32_t c2) { return (c1 & c2) | ((c1 ^ c2) >> 1); }

// The width of a segment from those of its ends; the sum wraps at 32 bits.
constexpr std::uint32_t MixWidths(std::uint32_t w1, std::uint32_t w2) { return (w1 + w2) >> 1; }

// The colour of a drawn segment: mixed, never the key (compared over all 32 bits), and opaque.
constexpr std::uint32_t InkLineColour(std::uint32_t c1, std::uint32_t c2)
{
    const std::uint32_t mixed = MixColors(c1, c2);
    return (mixed == g_colorKey ? g_colorKeySubstitute : mixed) | OpaqueAlpha;
}

// The width of a line in a back-end that takes fractions: half of a sum that wraps at 32 bits.
constexpr float HalfWidthSum(std::uint32_t w1, std::uint32_t w2)
{
    return static_cast<float>(w1 + w2) * 0.5F;
}

} // namespace zq::LM
