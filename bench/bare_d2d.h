// What both bare frames of Direct2D's calls draw alike.
#pragma once

#include "bare_overlay.h"

#include "render/d2d_headers.h"

#include <wrl/client.h>

#include <stdexcept>

namespace zq::LM::bench {

using Microsoft::WRL::ComPtr;

constexpr float LineShare = Ink::Grey / 255.0F;
constexpr D2D1_COLOR_F LineColour = {LineShare, LineShare, LineShare, 1.0F};

inline void Need(HRESULT result, const char* step)
{
    if (FAILED(result)) {
        throw std::runtime_error(std::string("no ") + step + " for the bare overlay");
    }
}

inline ComPtr<ID2D1StrokeStyle> RoundStroke(ID2D1Factory& factory)
{
    D2D1_STROKE_STYLE_PROPERTIES properties{};
    properties.startCap = D2D1_CAP_STYLE_ROUND;
    properties.endCap = D2D1_CAP_STYLE_ROUND;
    properties.miterLimit = 10.0F;
    ComPtr<ID2D1StrokeStyle> style;
    Need(factory.CreateStrokeStyle(&properties, nullptr, 0, style.GetAddressOf()), "stroke");
    return style;
}

inline ComPtr<ID2D1SolidColorBrush> LineBrush(ID2D1RenderTarget& target)
{
    ComPtr<ID2D1SolidColorBrush> brush;
    Need(target.CreateSolidColorBrush(&LineColour, nullptr, brush.GetAddressOf()), "brush");
    return brush;
}

inline void DrawSegment(ID2D1RenderTarget& target, const POINT& from, const POINT& to,
                        ID2D1SolidColorBrush& brush, ID2D1StrokeStyle& style)
{
    const D2D1_POINT_2F first = {static_cast<float>(from.x), static_cast<float>(from.y)};
    const D2D1_POINT_2F second = {static_cast<float>(to.x), static_cast<float>(to.y)};
    target.DrawLine(first, second, &brush, Ink::Width, &style);
}

} // namespace zq::LM::bench
