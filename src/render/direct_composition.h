// The DirectComposition back-end: ink of any transparency, which the system composes with the desktop without
// a bitmap of ours in between.
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

    // False, with a line in the log, where the system lacks a device or the engine. No colour is reserved
    // here, so the key goes unused.
    bool InitTransparentWindow(HWND window, unsigned colorKey) override;

    bool Clear() override;
    bool Present() override;

    // Colours may be partly transparent.
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;
    void FillRect(int left, int top, int right, int bottom, unsigned colour) override;

    // A hollow stroke, as far as this back-end has one: half transparent, and only as far as the pen touches
    // from the oldest sample on.
    void DrawPenData(std::vector<PenData>* samples, unsigned width, unsigned colour) override;

    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override;

    // Raises std::runtime_error when the new buffers cannot be drawn into.
    void Resize(HWND window) override;

    // Frames go to the system directly.
    void SetMemoryDC(HDC) override {}

private:
    std::unique_ptr<DirectCompositionImpl> impl;
};

} // namespace zq::LM
