// The Direct2D back-end: draws without antialiasing into the memory bitmap, so that every pixel is either ink
// or the key that the overlay's window shows as transparent.
#pragma once

#include "render/d2d_headers.h"
#include "render/drawing_lib.h"

#include <dwrite.h>
#include <wrl/client.h>

#include <memory>

namespace zq::LM {

class D2D final : public DrawingLib {
public:
    // Makes everything but the binding to a bitmap, whether or not this back-end is the active one. What
    // fails stays missing, and what needs it is not drawn.
    D2D();
    ~D2D() override;
    D2D(const D2D&) = delete;
    D2D& operator=(const D2D&) = delete;

    bool InitTransparentWindow(HWND newWindow, unsigned colorKey) override;

    // Both are false without a render target. A target that asks to be made anew is used again as it is.
    bool Clear() override;
    bool Present() override;

    // The mean of the ends' colours, channel by channel. The alpha byte does not count: erasing paints the
    // key.
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;

    // Wrapped at the right edge of the shell's desktop; nothing without a shell.
    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override;

    // Binds the render target to the bitmap over the rectangle of the shell's desktop: where that does not
    // begin at the origin, ink lies as far from the pen. Without a bitmap the last binding stays.
    void SetMemoryDC(HDC newDC) override;

    // Strokes come as segments, the bitmap follows the screen without help, and rate bars are not drawn here.
    void DrawPenData(std::vector<PenData>*, unsigned, unsigned) override {}
    void Resize(HWND) override {}
    void FillRect(int, int, int, int, unsigned) override {}

private:
    template <typename Interface> using ComPtr = Microsoft::WRL::ComPtr<Interface>;

    bool SetUp_();
    bool CanDraw_() const { return renderTarget != nullptr && isBound; }
    void CreateTextFormat_();
    ComPtr<ID2D1SolidColorBrush> NewBrush_(const D2D1_COLOR_F& colour); // null when it could not be made

    HWND window = nullptr;
    HDC dc = nullptr; // the Core's
    ComPtr<IDWriteFactory> writeFactory;
    ComPtr<IDWriteTextFormat> textFormat;
    ComPtr<ID2D1Factory> factory;
    ComPtr<ID2D1DCRenderTarget> renderTarget;
    std::unique_ptr<D2D1_COLOR_F> clearColour;
    bool isBound = false; // whether the render target has had a bitmap to draw into
};

} // namespace zq::LM
