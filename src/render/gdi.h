// The GDI back-end: asks for no graphics device at all, and lets what lies below the ink shine through it.
//
//   smoothing       none
//   alpha byte      honoured, below the window's own opacity of three quarters; erasing draws nothing
//   hollow strokes  not hollow, since no part of a stroke can be erased; they come as segments
//   rate bars       not drawn
//   device loss     none
#pragma once

#include "render/drawing_lib.h"
#include "render/paint_area.h"

#include <cstdint>
#include <memory>

namespace Gdiplus {
struct GdiplusStartupInput;
}

namespace zq::LM {

class GDI final : public DrawingLib {
public:
    // Starts GDI+, so that a choice of the user's finds it running. The record hears of a bitmap that could
    // not be cleared.
    explicit GDI(PaintRecord& record);
    ~GDI() override;
    GDI(const GDI&) = delete;
    GDI& operator=(const GDI&) = delete;

    bool InitTransparentWindow(HWND newWindow, unsigned colorKey) override;

    // Clear is false without a memory bitmap. A frame that is drawn needs nothing more: painting copies it.
    bool Clear() override;
    bool Present() override;

    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;
    void DrawPenData(std::vector<PenData>*, unsigned, unsigned) override {}

    // In the system's font. A grey shadow keeps it readable whatever lies below.
    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override;

    void Resize(HWND) override {} // the bitmap follows the screen without help
    void SetMemoryDC(HDC newDC) override;
    void FillRect(int, int, int, int, unsigned) override {}

private:
    bool IsReady_() const { return dc != nullptr; }

    PaintRecord& record; // the Core's
    HWND window = nullptr;
    HDC dc = nullptr; // the Core's
    std::uint32_t keyColour = 0;
    ULONG_PTR gdiplusToken = 0;
    std::unique_ptr<Gdiplus::GdiplusStartupInput> startupInput;
    bool useGdiPlus = true;
};

} // namespace zq::LM
