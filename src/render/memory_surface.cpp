// The off-screen bitmap that the Direct2D and GDI back-ends draw into.
#include "render/memory_surface.h"

#include "render/key_fill.h"
#include "render/line_rules.h"

namespace zq::LM {

bool MemorySurface::Create(HWND window, int newWidth, int newHeight)
{
    Release();
    width = newWidth;
    height = newHeight;
    const WindowDC windowDC(window);
    dc.reset(CreateCompatibleDC(windowDC.Get()));
    bitmap.reset(CreateCompatibleBitmap(windowDC.Get(), width, height));
    if (dc == nullptr || bitmap == nullptr) {
        Release();
        return false;
    }
    selected.emplace(dc.get(), bitmap.get());
    // A new bitmap is black, and a back-end may fail to draw on it or not reach all of it: better none.
    if (!selected->IsSelected() || !Clear()) {
        Release();
        return false;
    }
    return true;
}

bool MemorySurface::Clear() const
{
    return dc != nullptr && FillRectangle(dc.get(), {0, 0, width, height}, g_colorKey);
}

void MemorySurface::Release()
{
    // A bitmap that is still selected cannot be deleted.
    selected.reset();
    dc.reset();
    bitmap.reset();
}

bool MemorySurface::CopyTo(HDC target, const RECT& client, double scale) const
{
    const int shownWidth = client.right - client.left;
    const int shownHeight = client.bottom - client.top;
    if (scale == 1.0) {
        return BitBlt(target, client.left, client.top, shownWidth, shownHeight, dc.get(), client.left,
                      client.top, SRCCOPY) != 0;
    }
    SetStretchBltMode(target, HALFTONE);
    // The source's y is the left edge too: both are 0 for a client rectangle.
    return StretchBlt(target, client.left, client.top, shownWidth, shownHeight, dc.get(), client.left,
                      client.left, static_cast<int>(shownWidth * scale),
                      static_cast<int>(shownHeight * scale), SRCCOPY) != 0;
}

} // namespace zq::LM
