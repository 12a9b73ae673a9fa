// The interface of a back-end: what the overlay's frames are drawn with.
#pragma once

#include "ink/pen_data.h"
#include "platform/win32/windows_header.h"

#include <vector>

namespace zq::LM {

// All of them exist at once and one is in use, which may meet any call before it has been given a window. So
// each call must be harmless then, and a failure must not stop a frame: the results are for tests and
// debuggers. Nothing here is for two threads. Colours are 0xAABBGGRR; what the alpha byte does is said with
// each back-end.
class DrawingLib {
public:
    DrawingLib() = default;
    virtual ~DrawingLib() = default;
    DrawingLib(const DrawingLib&) = delete;
    DrawingLib& operator=(const DrawingLib&) = delete;

    // The overlay window from now on, and the colour through which the desktop is to be seen.
    virtual bool InitTransparentWindow(HWND window, unsigned colorKey) = 0;

    // Brackets of a frame.
    virtual bool Clear() = 0;
    virtual bool Present() = 0;

    virtual void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                          unsigned colour2) = 0;
    virtual void DrawPenData(std::vector<PenData>* samples, unsigned width, unsigned colour) = 0;
    virtual void DrawText(const wchar_t* text, int x, int y, unsigned colour) = 0;

    // The screen's size or place has changed.
    virtual void Resize(HWND window) = 0;

    // The device context of the memory bitmap, or null while there is none. Not owned.
    virtual void SetMemoryDC(HDC dc) = 0;

    virtual void FillRect(int left, int top, int right, int bottom, unsigned colour) = 0;
};

} // namespace zq::LM
