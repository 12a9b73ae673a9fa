// The interface of a back-end: what the overlay's frames are drawn with.
#pragma once

#include "ink/pen_data.h"
#include "platform/win32/windows_header.h"

#include <vector>

namespace zq::LM {

// All back-ends exist at once and one is in use, which may meet any call before it has been given a window.
// So each call must be harmless then, and a failure must not stop a frame: the results are for tests and
// debuggers.
//
// Order: InitTransparentWindow once for each window; then frames, each of Clear, any drawing, Present. Resize
// and SetMemoryDC come between frames. Nothing here is for two threads.
//
// Units: pixels from the upper left corner of what is drawn on, which is the overlay's client area, or at a
// scale other than 1 the memory bitmap; x to the right, y down. Coordinates outside of it are legal and
// simply not seen. Colours are 0xAABBGGRR; what the alpha byte does is said with each back-end.
class DrawingLib {
public:
    DrawingLib() = default;
    virtual ~DrawingLib() = default;
    DrawingLib(const DrawingLib&) = delete;
    DrawingLib& operator=(const DrawingLib&) = delete;

    // The overlay window from now on, not owned, and the colour through which the desktop is to be seen, of
    // which the alpha byte is 0.
    virtual bool InitTransparentWindow(HWND window, unsigned colorKey) = 0;

    // Brackets of a frame: Clear makes all of it see-through, Present shows what was drawn since.
    virtual bool Clear() = 0;
    virtual bool Present() = 0;

    // A round-capped line, both ends included, whose caps reach beyond them by half the width. The width is
    // the mean of the two, their sum taken in 32 bits; what becomes of two colours is said with each
    // back-end.
    virtual void DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                          unsigned colour2) = 0;

    // All samples, oldest first, as one hollow stroke. Only read; null and empty are nothing.
    virtual void DrawPenData(std::vector<PenData>* samples, unsigned width, unsigned colour) = 0;

    // A terminated text whose first character's upper left corner is at the place.
    virtual void DrawText(const wchar_t* text, int x, int y, unsigned colour) = 0;

    // The screen's size or place has changed, and the window has followed.
    virtual void Resize(HWND window) = 0;

    // The device context of the memory bitmap, or null while there is none. Not owned.
    virtual void SetMemoryDC(HDC dc) = 0;

    // The pixels from left and top, both included, to right and bottom, both excluded. Nothing when it is
    // empty.
    virtual void FillRect(int left, int top, int right, int bottom, unsigned colour) = 0;
};

} // namespace zq::LM
