// What a line callback decides before it hands a segment to a back-end.
#pragma once

#include <cstdint>

namespace zq::LM {

// Colours are 0xAABBGGRR: red in the low byte, alpha on top where a caller sets one.

// Windows leaves pixels of exactly this colour out of the overlay. Hardly anybody writes in bright magenta.
inline constexpr std::uint32_t g_colorKey = 0x00FF00FF;

// For those who do: one step less blue looks the same and stays in sight.
inline constexpr std::uint32_t g_colorKeySubstitute = 0x00FE00FF;

inline constexpr std::uint32_t OpaqueAlpha = 0xFF000000;

// One colour for a segment of two. In a stroke they are the same and come out unchanged. Of different ones it
// makes a rough mean, in which a channel may spill into the one below.
constexpr std::uint32_t MixColors(std::uint32_t c1, std::uint32_t c2) { return (c1 & c2) | ((c1 ^ c2) >> 1); }

// One width for a segment of two, in whole pixels. Huge ones overflow into small ones.
constexpr std::uint32_t MixWidths(std::uint32_t w1, std::uint32_t w2) { return (w1 + w2) >> 1; }

// What ink is drawn in. Only a colour without an alpha byte can be taken for the key.
constexpr std::uint32_t InkLineColour(std::uint32_t c1, std::uint32_t c2)
{
    const std::uint32_t mixed = MixColors(c1, c2);
    return (mixed == g_colorKey ? g_colorKeySubstitute : mixed) | OpaqueAlpha;
}

// The same for back-ends that can draw half a pixel.
constexpr float HalfWidthSum(std::uint32_t w1, std::uint32_t w2)
{
    return static_cast<float>(w1 + w2) * 0.5F;
}

} // namespace zq::LM
