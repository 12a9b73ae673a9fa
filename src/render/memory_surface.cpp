// The off-screen bitmap that the Direct2D and GDI back-ends draw into.
#include "render/memory_surface.h"

#include "render/key_fill.h"
#include "render/line_rules.h"

namespace zq::LM {

bool MemorySurface::Create(HWND window, int width, int height)
{
    Release();
    const WindowDC windowDC(window);
    dc.reset(CreateCompatibleDC(windowDC.Get()));
    bitmap.reset(CreateCompatibleBitmap(windowDC.Get(), width, height));
    if (dc == nullptr || bitmap == nullptr) {
        Release();
        return false;
    }
    selected.emplace(dc.get(), bitmap.get());
    // A new bitmap is black, and a back-end may fail to draw on it or not reach all of it: better none.
    if (!selected->IsSelected() || !FillRectangle(dc.get(), {0, 0, width, height}, g_colorKey)) {
        Release();
        return false;
    }
    return true;
}

void MemorySurface::Release()
{
    // A bitmap that is still selected cannot be deleted.
    selected.reset();
    dc.reset();
    bitmap.reset();
}

void MemorySurface::CopyTo(HDC target, const RECT& client, double scale) const
{
    const int width = client.right - client.left;
    const int height = client.bottom - client.top;
    if (scale == 1.0) {
        BitBlt(target, client.left, client.top, width, height, dc.get(), client.left, client.top, SRCCOPY);
        return;
    }
    SetStretchBltMode(target, HALFTONE);
    // The source's y is the left edge too: both are 0 for a client rectangle.
    StretchBlt(target, client.left, client.top, width, height, dc.get(), client.left, client.left,
               static_cast<int>(width * scale), static_cast<int>(height * scale), SRCCOPY);
}

} // namespace zq::LM
