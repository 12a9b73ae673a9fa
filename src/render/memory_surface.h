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

    // Makes a bitmap of the window's format, transparent all over. On failure there is no surface.
    void Create(HWND window, int newWidth, int newHeight);
    void Release();

    // Makes all of it transparent again. Does nothing without a surface.
    void Clear() const;

    HDC DC() const { return dc.get(); } // null while there is no surface

    // Shows the surface on a window: as it is at a scale of 1, else stretched from a surface that is larger
    // by the scale.
    void CopyTo(HDC target, const RECT& client, double scale) const;

private:
    MemoryDC dc;
    GdiObject<HBITMAP> bitmap;
    std::optional<SelectedObject> selected;
    int width = 0;
    int height = 0;
};

} // namespace zq::LM
