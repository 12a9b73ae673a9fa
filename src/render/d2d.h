// The Direct2D back-end: hard-edged ink on the memory bitmap. A window with a colour key has no pixels that
// are partly seen through, so there is nothing to soften an edge with.
#pragma once

#include "render/d2d_headers.h"
#include "render/drawing_lib.h"

#include <dwrite.h>
#include <wrl/client.h>

#include <memory>

namespace zq::LM {

class D2D final : public DrawingLib {
public:
    // Ready but for a bitmap, so that a choice of the user's finds it so. What could not be made stays
    // missing, and with it what it would have drawn.
    D2D();
    ~D2D() override;
    D2D(const D2D&) = delete;
    D2D& operator=(const D2D&) = delete;

    bool InitTransparentWindow(HWND newWindow, unsigned colorKey) override;

    // False where Direct2D could not be set up. A target that wants to be remade goes on as it is: what it
    // draws on is a bitmap in memory, which no device takes along.
    bool Clear() override;
    bool Present() override;

    // Opaque whatever the alpha byte says: that is how erasing works here, by painting in the key. Ends of
    // two colours meet in their mean.
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;

    // Lines break where the shell's desktop ends on the right, so without a shell there is no text.
    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override;

    // The place of the shell's desktop becomes the part of the bitmap that is drawn on. Samples are positions
    // on the screen and every back-end draws them from the overlay's own corner; here they move by that
    // corner a second time. So where the desktop begins elsewhere than at (0, 0), ink lies twice as far from
    // the pen as with the other back-ends. Without a bitmap the last binding stays.
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
