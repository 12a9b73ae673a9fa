// Filling with one colour, as frames and cleared windows begin.
#include "render/key_fill.h"

#include "platform/win32/gdi_owners.h"
#include "render/line_rules.h"

namespace zq::LM {

void FillRectangle(HDC dc, const RECT& rectangle, COLORREF colour)
{
    const GdiObject<HBRUSH> brush(CreateSolidBrush(colour));
    const SelectedObject selected(dc, brush.get());
    PatBlt(dc, rectangle.left, rectangle.top, rectangle.right, rectangle.bottom, PATCOPY);
}

void ClearWindowToKey(HWND window)
{
    if (window == nullptr) {
        return; // a null window's device context is the whole screen's
    }
    const WindowDC dc(window);
    RECT client{};
    GetClientRect(window, &client);
    FillRectangle(dc.Get(), client, g_colorKey);
}

} // namespace zq::LM
