// The DirectComposition back-end: ink of any transparency, which the system composes with the desktop without
// a bitmap of ours in between.
//
//   smoothing       Direct2D's own, for ink and text
//   alpha byte      honoured: colours may be partly transparent, and erasing draws nothing
//   hollow strokes  the whole ink as one half-transparent stroke, as far as the pen touches from the oldest
//   sample on rate bars       drawn device loss     told to the log when the screen changes; nothing shows
//   until another instance brings a new device
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
    void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                  unsigned colour2) override;
    void DrawPenData(std::vector<PenData>* samples, unsigned width, unsigned colour) override;
    void DrawText(const wchar_t* text, int x, int y, unsigned colour) override;

    // Raises std::runtime_error when the new buffers cannot be drawn into.
    void Resize(HWND window) override;

    void SetMemoryDC(HDC) override {} // frames go to the system directly
    void FillRect(int left, int top, int right, int bottom, unsigned colour) override;

private:
    std::unique_ptr<DirectCompositionImpl> impl;
};

} // namespace zq::LM
