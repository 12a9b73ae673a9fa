// Colours and strokes as Direct2D takes them.
#pragma once

#include "render/d2d_headers.h"

#include <cstdint>

namespace zq::LM {

// From 0xAABBGGRR to shares of 1, with an alpha of its own or that of the colour.
D2D1_COLOR_F ShareColour(std::uint32_t colour, float alpha);
D2D1_COLOR_F ShareColourWithAlpha(std::uint32_t colour);

// The mean of two colours, channel by channel, opaque.
D2D1_COLOR_F MeanColour(std::uint32_t colour1, std::uint32_t colour2);

// The transparent key as what a frame begins with. Red and blue change places, which the usual key does not
// show; the target ignores the alpha.
D2D1_COLOR_F CrossedKeyColour(std::uint32_t colorKey);

inline D2D1_POINT_2F D2DPoint(int x, int y) { return {static_cast<float>(x), static_cast<float>(y)}; }

// Round caps, flat dashes, mitred joins, solid.
D2D1_STROKE_STYLE_PROPERTIES RoundStroke();

} // namespace zq::LM
