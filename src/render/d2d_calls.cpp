// What the two back-ends that draw with Direct2D ask it for in the same way.
#include "render/d2d_calls.h"

namespace zq::LM {

Microsoft::WRL::ComPtr<ID2D1SolidColorBrush> NewBrush(ID2D1RenderTarget& target, const D2D1_COLOR_F& colour)
{
    Microsoft::WRL::ComPtr<ID2D1SolidColorBrush> made;
    if (FAILED(target.CreateSolidColorBrush(&colour, nullptr, made.GetAddressOf()))) {
        made.Reset();
    }
    return made;
}

HRESULT MakeRoundStroke(ID2D1Factory& factory, ID2D1StrokeStyle** style)
{
    D2D1_STROKE_STYLE_PROPERTIES properties{};
    properties.startCap = D2D1_CAP_STYLE_ROUND;
    properties.endCap = D2D1_CAP_STYLE_ROUND;
    properties.dashCap = D2D1_CAP_STYLE_FLAT;
    properties.lineJoin = D2D1_LINE_JOIN_MITER;
    properties.miterLimit = 10.0F;
    properties.dashStyle = D2D1_DASH_STYLE_SOLID;
    properties.dashOffset = 0.0F;
    return factory.CreateStrokeStyle(&properties, nullptr, 0, style);
}

void DrawTextIn(ID2D1RenderTarget& target, const wchar_t* text, IDWriteTextFormat& format,
                const D2D1_RECT_F& layout, ID2D1Brush& brush)
{
    target.DrawText(text, static_cast<UINT32>(lstrlenW(text)), &format, &layout, &brush,
                    D2D1_DRAW_TEXT_OPTIONS_NONE, DWRITE_MEASURING_MODE_NATURAL);
}

} // namespace zq::LM
