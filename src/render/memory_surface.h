// The off-screen bitmap that the Direct2D and GDI back-ends draw into.
#pragma once

#include "platform/win32/gdi_owners.h"

#include <optional>

namespace zq::LM {

class MemorySurface {
public:
    MemorySurface() = default;
    ~MemorySurface() { Release(); }
    MemorySurface(const MemorySurface&) = delete;
    MemorySurface& operator=(const MemorySurface&) = delete;

    // Makes a bitmap of the window's format, transparent all over. False when there is no surface; a later
    // try may succeed.
    bool Create(HWND window, int newWidth, int newHeight);
    void Release();

    // Makes all of it transparent again. False when it could not, and without a surface.
    bool Clear() const;

    HDC DC() const { return dc.get(); } // null while there is no surface

    // `scale` is how many of its pixels make one of the window's. False when the system refuses.
    bool CopyTo(HDC target, const RECT& client, double scale) const;

private:
    MemoryDC dc;
    GdiObject<HBITMAP> bitmap;
    std::optional<SelectedObject> selected;
    int width = 0;
    int height = 0;
};

} // namespace zq::LM
