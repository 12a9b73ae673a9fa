// Colours as Direct2D takes them.
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

D2D1_COLOR_F MeanColour(std::uint32_t colour1, std::uint32_t colour2)
{
    constexpr float HalfOfAByte = 0.0019607844F; // 1 / 510
    const auto mean = [=](int shift) {
        return static_cast<float>(((colour1 >> shift) & 0xFF) + ((colour2 >> shift) & 0xFF)) * HalfOfAByte;
    };
    return {mean(0), mean(8), mean(16), 1.0F};
}

D2D1_COLOR_F CrossedKeyColour(std::uint32_t colorKey)
{
    return {Share(colorKey >> 16), Share(colorKey >> 8), Share(colorKey), 0.5F};
}

} // namespace zq::LM
