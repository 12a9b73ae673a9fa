// The Direct2D back-end: hard-edged ink on the memory bitmap. A window with a colour key has no pixels that
// are partly seen through, so there is nothing to soften an edge with.
//
//   smoothing       none
//   alpha byte      ignored: everything is opaque, and erasing paints the key
//   hollow strokes  really hollow; they come as segments
//   rate bars       not drawn
//   device loss     none: what is drawn on is a bitmap in memory
#pragma once

#include "render/d2d_headers.h"
#include "render/drawing_lib.h"
#include "render/paint_area.h"

#include <dwrite.h>
#include <wrl/client.h>

#include <memory>

namespace zq::LM {

class D2D final : public DrawingLib {
public:
    // Ready but for a bitmap, so that a choice of the user's finds it so. What could not be made stays
    // missing, and with it what it would have drawn. The record hears of frames that the bitmap does not
    // hold.
    explicit D2D(PaintRecord& record);
    ~D2D() override;
    D2D(const D2D&) = delete;
    D2D& operator=(const D2D&) = delete;

    bool InitTransparentWindow(HWND newWindow, unsigned colorKey) override;

    // False where Direct2D could not be set up. A target that wants to be remade goes on as it is.
    bool Clear() override;
    bool Present() override;

    // Ends of two colours meet in their mean.
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;

    void DrawPenData(std::vector<PenData>*, unsigned, unsigned) override {}

    // Lines break where the shell's desktop ends on the right, so without a shell there is no text.
    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override;

    void Resize(HWND) override {} // the bitmap follows the screen without help

    // The place of the shell's desktop becomes the part of the bitmap that is drawn on. Samples are positions
    // on the screen and every back-end draws them from the overlay's own corner; here they move by that
    // corner a second time. So where the desktop begins elsewhere than at (0, 0), ink lies twice as far from
    // the pen as with the other back-ends. Without a bitmap the last binding stays.
    void SetMemoryDC(HDC newDC) override;

    void FillRect(int, int, int, int, unsigned) override {}

private:
    template <typename Interface> using ComPtr = Microsoft::WRL::ComPtr<Interface>;

    bool SetUp_();
    void CreateTextFormat_();
    bool IsReady_() const { return renderTarget != nullptr; }
    bool CanDraw_() const { return IsReady_() && isBound; }

    PaintRecord& record; // the Core's
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
