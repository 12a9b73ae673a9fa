// An overlay of the fewest calls: a window, and a frame of system calls with ready arguments.
#pragma once

#include "platform/win32/gdi_owners.h"

#include <memory>
#include <vector>

namespace zq::LM::bench {

constexpr COLORREF Key = 0x00FF00FF; // the colour that is let through

// What is drawn, in one width and one colour.
struct Ink {
    static constexpr int Width = 6;
    static constexpr int Grey = 0x20;

    std::vector<POINT> points;
    RECT bounds = {}; // of all that a line may reach
};

// A zigzag of that many segments, within 256 pixels both ways.
Ink Zigzag(int segments);

// The calls of a frame, as a back-end of the library makes them.
class BareBackEnd {
public:
    virtual ~BareBackEnd() = default;
    virtual DWORD ExtendedStyle() const { return 0; }
    virtual void Bind(HWND window) = 0;
    virtual void Paint(HWND window, const Ink& ink) = 0; // between BeginPaint and EndPaint
};

std::unique_ptr<BareBackEnd> BareGdi();
std::unique_ptr<BareBackEnd> BareDirect2D();

// The composition engine is the one that the library meets.
std::unique_ptr<BareBackEnd> BareComposition(HMODULE library);

class BareOverlay {
public:
    BareOverlay(std::unique_ptr<BareBackEnd> backEnd, const RECT& place, Ink ink);
    ~BareOverlay();
    BareOverlay(const BareOverlay&) = delete;
    BareOverlay& operator=(const BareOverlay&) = delete;

    void PaintOnce() const;

private:
    static LRESULT CALLBACK Procedure_(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    std::unique_ptr<BareBackEnd> backEnd;
    Ink ink;
    HWND window = nullptr;
};

// The bitmap that two of them draw into, and its copy to the window.
class BareBitmap {
public:
    void Create(HWND window);
    HDC DC() const { return dc.get(); }
    void CopyTo(HWND window, const RECT& part) const;

private:
    GdiObject<HBITMAP> bitmap;
    MemoryDC dc;
};

} // namespace zq::LM::bench
