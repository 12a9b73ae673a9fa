// The interface of a back-end: what the overlay's frames are drawn with.
#pragma once

#include "ink/pen_data.h"
#include "platform/win32/windows_header.h"

#include <vector>

namespace zq::LM {

// Everything runs on the overlay's thread. A back-end is made before it knows a window and may meet any call
// in that state; an operation that means nothing to it is empty. The results say whether it worked; nobody
// acts on them. Colours are 0xAABBGGRR; each back-end says whether it honours the alpha byte.
class DrawingLib {
public:
    DrawingLib() = default;
    virtual ~DrawingLib() = default;
    DrawingLib(const DrawingLib&) = delete;
    DrawingLib& operator=(const DrawingLib&) = delete;

    // Binds to the overlay window and makes it transparent where it is painted in the key.
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
