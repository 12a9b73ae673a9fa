// Colours and strokes as Direct2D takes them.
#include "render/d2d_rules.h"

namespace zq::LM {

namespace {

float Share(std::uint32_t byte) { return static_cast<float>(byte & 0xFF) / 255.0F; }

} // namespace

D2D1_COLOR_F ShareColour(std::uint32_t colour, float alpha)
{
    return {Share(colour), Share(colour >> 8), Share(colour >> 16), alpha};
}

D2D1_COLOR_F ShareColourWithAlpha(std::uint32_t colour) { return ShareColour(colour, Share(colour >> 24)); }

D2D1_STROKE_STYLE_PROPERTIES RoundStroke()
{
    D2D1_STROKE_STYLE_PROPERTIES properties{};
    properties.startCap = D2D1_CAP_STYLE_ROUND;
    properties.endCap = D2D1_CAP_STYLE_ROUND;
    properties.dashCap = D2D1_CAP_STYLE_FLAT;
    properties.lineJoin = D2D1_LINE_JOIN_MITER;
    properties.miterLimit = 10.0F;
    properties.dashStyle = D2D1_DASH_STYLE_SOLID;
    properties.dashOffset = 0.0F;
    return properties;
}

} // namespace zq::LM
