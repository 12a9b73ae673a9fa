// The Direct2D back-end.
#include "render/d2d.h"

#include "platform/dropped.h"
#include "render/d2d_calls.h"
#include "render/d2d_rules.h"
#include "render/layered_window.h"
#include "render/line_rules.h"
#include "render/shell_window.h"

namespace zq::LM {

D2D::D2D(PaintRecord& record)
    : record(record), clearColour(std::make_unique<D2D1_COLOR_F>(D2D1_COLOR_F{0.0F, 0.0F, 0.0F, 1.0F}))
{
    SetUp_(); // a failure shows as a missing render target
}

// As they were made, drawing before text, where members would go the other way. Each keeps its factory alive.
D2D::~D2D()
{
    factory.Reset();
    renderTarget.Reset();
    writeFactory.Reset();
    textFormat.Reset();
    clearColour.reset();
    dc = nullptr;
    window = nullptr;
}

bool D2D::SetUp_()
{
    if (FAILED(D2D1CreateFactory(D2D1_FACTORY_TYPE_SINGLE_THREADED, __uuidof(ID2D1Factory), nullptr,
                                 reinterpret_cast<void**>(factory.GetAddressOf())))) {
        return false;
    }
    CreateTextFormat_();
    D2D1_RENDER_TARGET_PROPERTIES properties{};
    properties.pixelFormat = {DXGI_FORMAT_B8G8R8A8_UNORM, D2D1_ALPHA_MODE_IGNORE};
    if (FAILED(factory->CreateDCRenderTarget(&properties, renderTarget.GetAddressOf()))) {
        return false;
    }
    // The key is one exact colour: a pixel that is only near it would be seen as magenta.
    renderTarget->SetAntialiasMode(D2D1_ANTIALIAS_MODE_ALIASED);
    renderTarget->SetTextAntialiasMode(D2D1_TEXT_ANTIALIAS_MODE_ALIASED);
    return true;
}

// Text that cannot be drawn is no reason to draw no ink.
void D2D::CreateTextFormat_()
{
    constexpr float Size = 16.0F;
    Dropped(DWriteCreateFactory(DWRITE_FACTORY_TYPE_SHARED, __uuidof(IDWriteFactory),
                                reinterpret_cast<IUnknown**>(writeFactory.GetAddressOf())));
    if (writeFactory != nullptr) {
        Dropped(writeFactory->CreateTextFormat(L"Meiryo", nullptr, DWRITE_FONT_WEIGHT_NORMAL,
                                               DWRITE_FONT_STYLE_OBLIQUE, DWRITE_FONT_STRETCH_NORMAL, Size,
                                               L"", textFormat.GetAddressOf()));
    }
}

bool D2D::InitTransparentWindow(HWND newWindow, unsigned colorKey)
{
    constexpr BYTE Opaque = 255;
    window = newWindow;
    *clearColour = CrossedKeyColour(colorKey);
    record.SetWindowOpaque(!LetKeyThrough(window, colorKey, Opaque, LWA_COLORKEY));
    return true;
}

bool D2D::Clear()
{
    if (!IsReady_()) {
        return false;
    }
    constexpr D2D1_MATRIX_3X2_F Identity = {{{1.0F, 0.0F, 0.0F, 1.0F, 0.0F, 0.0F}}};
    renderTarget->BeginDraw();
    renderTarget->SetTransform(&Identity);
    if (isBound) { // the first frame comes before the bitmap, and not every Direct2D clears nothing unharmed
        renderTarget->Clear(clearColour.get());
    }
    return true;
}

bool D2D::Present()
{
    if (!IsReady_()) {
        return false;
    }
    const HRESULT result = renderTarget->EndDraw();
    if (result != S_OK) {
        record.ForgetBitmap();
    }
    return result == S_OK || result == static_cast<HRESULT>(D2DERR_RECREATE_TARGET);
}

void D2D::DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                   unsigned colour2)
{
    if (!CanDraw_()) {
        return;
    }
    const ComPtr<ID2D1SolidColorBrush> brush = NewBrush(*renderTarget.Get(), MeanColour(colour1, colour2));
    if (brush == nullptr) {
        return;
    }
    ComPtr<ID2D1StrokeStyle> style;
    Dropped(MakeRoundStroke(*factory.Get(), style.GetAddressOf())); // without it the line has flat ends
    renderTarget->DrawLine(D2DPoint(x1, y1), D2DPoint(x2, y2), brush.Get(), HalfWidthSum(width1, width2),
                           style.Get());
}

void D2D::DrawText(const wchar_t* text, int x, int y, unsigned colour)
{
    const std::optional<RECT> shell = ShellWindowRect();
    if (!shell || !CanDraw_() || textFormat == nullptr) {
        return;
    }
    const ComPtr<ID2D1SolidColorBrush> brush = NewBrush(*renderTarget.Get(), ShareColour(colour, 1.0F));
    if (brush == nullptr) {
        return;
    }
    const D2D1_POINT_2F corner = D2DPoint(x, y);
    const D2D1_RECT_F layout = {corner.x, corner.y, static_cast<float>(shell->right),
                                static_cast<float>(shell->bottom)};
    DrawTextIn(*renderTarget.Get(), text, *textFormat.Get(), layout, *brush.Get());
}

void D2D::SetMemoryDC(HDC newDC)
{
    dc = newDC;
    if (dc == nullptr || !IsReady_()) {
        return;
    }
    const RECT shell = ShellWindowRect().value_or(ScreenWithoutShell);
    if (SUCCEEDED(renderTarget->BindDC(dc, &shell))) {
        isBound = true; // for good: a failed binding leaves the one before
    }
}

} // namespace zq::LM
