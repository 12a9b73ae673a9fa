// What the two back-ends that draw with Direct2D ask it for in the same way.
#pragma once

#include "render/d2d_headers.h"

#include <dwrite.h>
#include <wrl/client.h>

namespace zq::LM {

// Null when it could not be made.
Microsoft::WRL::ComPtr<ID2D1SolidColorBrush> NewBrush(ID2D1RenderTarget& target, const D2D1_COLOR_F& colour);

// Round at both ends. Nothing is made on failure.
HRESULT MakeRoundStroke(ID2D1Factory& factory, ID2D1StrokeStyle** style);

// From the layout's upper left corner; lines break at its right edge, and nothing is cut off.
void DrawTextIn(ID2D1RenderTarget& target, const wchar_t* text, IDWriteTextFormat& format,
                const D2D1_RECT_F& layout, ID2D1Brush& brush);

} // namespace zq::LM
