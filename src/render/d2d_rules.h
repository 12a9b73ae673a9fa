// Colours and places as Direct2D takes them.
#pragma once

#include "render/d2d_headers.h"

#include <cstdint>

namespace zq::LM {

// From 0xAABBGGRR to shares of 1, with an alpha of its own or that of the colour.
D2D1_COLOR_F ShareColour(std::uint32_t colour, float alpha);
D2D1_COLOR_F ShareColourWithAlpha(std::uint32_t colour);

// The mean of two colours, channel by channel, opaque.
D2D1_COLOR_F MeanColour(std::uint32_t colour1, std::uint32_t colour2);

// What a frame begins with. The usual key is as red as it is blue: another one would come out with these two
// exchanged. The target has no alpha.
D2D1_COLOR_F CrossedKeyColour(std::uint32_t colorKey);

inline D2D1_POINT_2F D2DPoint(int x, int y) { return {static_cast<float>(x), static_cast<float>(y)}; }

} // namespace zq::LM
