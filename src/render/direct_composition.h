// The DirectComposition back-end: draws with Direct2D into a swap chain of premultiplied alpha, shown as the
// overlay window's composition visual.
#pragma once

#include "render/drawing_lib.h"

#include <memory>

namespace zq::LM {

class DirectCompositionImpl;

class DirectComposition final : public DrawingLib {
public:
    DirectComposition();
    ~DirectComposition() override;
    DirectComposition(const DirectComposition&) = delete;
    DirectComposition& operator=(const DirectComposition&) = delete;

    // Builds the whole device chain for the window; false, with a line in the log, when a step of it fails.
    // There is no colour key: alpha makes transparent.
    bool InitTransparentWindow(HWND window, unsigned colorKey) override;

    bool Clear() override;
    bool Present() override;

    // These honour the alpha byte.
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;
    void FillRect(int left, int top, int right, int bottom, unsigned colour) override;

    // The whole vector as one half-transparent path, up to the first sample at which the pen lifts.
    void DrawPenData(std::vector<PenData>* samples, unsigned width, unsigned colour) override;

    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override;

    // Follows the bound window's size. Raises std::runtime_error when the new buffers cannot be drawn into.
    void Resize(HWND window) override;

    // The swap chain is the surface.
    void SetMemoryDC(HDC) override {}

private:
    std::unique_ptr<DirectCompositionImpl> impl;
};

} // namespace zq::LM
