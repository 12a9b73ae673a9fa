// The GDI back-end: draws into the memory bitmap, which the overlay copies onto its colour-keyed, slightly
// transparent window.
#pragma once

#include "render/drawing_lib.h"

#include <cstdint>
#include <memory>

namespace Gdiplus {
struct GdiplusStartupInput;
}

namespace zq::LM {

class GDI final : public DrawingLib {
public:
    // GDI+ runs from construction to destruction, whether or not this back-end is the active one.
    GDI();
    ~GDI() override;
    GDI(const GDI&) = delete;
    GDI& operator=(const GDI&) = delete;

    bool InitTransparentWindow(HWND newWindow, unsigned colorKey) override;

    // Clear is false without a memory bitmap. The window's painting shows the bitmap, so Present has nothing
    // to do.
    bool Clear() override;
    bool Present() override;

    // Honours the alpha byte.
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;

    // In the font that the device context holds, with a grey shadow one pixel to the right and below.
    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override;

    void SetMemoryDC(HDC newDC) override;

    // Strokes come as segments, the bitmap follows the screen without help, and rate bars are not drawn here.
    void DrawPenData(std::vector<PenData>*, unsigned, unsigned) override {}
    void Resize(HWND) override {}
    void FillRect(int, int, int, int, unsigned) override {}

private:
    HWND window = nullptr;
    HDC dc = nullptr; // the Core's
    std::uint32_t keyColour = 0;
    ULONG_PTR gdiplusToken = 0;
    std::unique_ptr<Gdiplus::GdiplusStartupInput> startupInput;
    bool useGdiPlus = true;
};

} // namespace zq::LM
