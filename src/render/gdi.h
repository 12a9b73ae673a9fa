// The GDI back-end: asks for no graphics device at all, and lets what lies below the ink shine through it.
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
    // Starts GDI+, so that a choice of the user's finds it running.
    GDI();
    ~GDI() override;
    GDI(const GDI&) = delete;
    GDI& operator=(const GDI&) = delete;

    bool InitTransparentWindow(HWND newWindow, unsigned colorKey) override;

    // Clear is false without a memory bitmap. A frame that is drawn needs nothing more: painting copies it.
    bool Clear() override;
    bool Present() override;

    // Alpha 0 leaves the bitmap as it was: no part of a stroke can be erased here.
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;

    // In the system's font. A grey shadow keeps it readable whatever lies below.
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
