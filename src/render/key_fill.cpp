// Filling with one colour, as frames and cleared windows begin.
#include "render/key_fill.h"

#include "platform/win32/gdi_owners.h"
#include "render/line_rules.h"

namespace zq::LM {

namespace {

// A context that did not take the brush would paint with the one it has: a white one, opaque to everybody.
bool PaintWith(HGDIOBJ brush, HDC dc, const RECT& rectangle)
{
    const SelectedObject selected(dc, brush);
    return selected.IsSelected() &&
           PatBlt(dc, rectangle.left, rectangle.top, rectangle.right, rectangle.bottom, PATCOPY) != 0;
}

// By the brush that every context has and that takes a colour, so that nothing need be made.
bool PaintWithContextsBrush(HDC dc, const RECT& rectangle, COLORREF colour)
{
    const COLORREF previous = SetDCBrushColor(dc, colour);
    if (previous == CLR_INVALID) {
        return false;
    }
    const bool painted = PaintWith(GetStockObject(DC_BRUSH), dc, rectangle);
    SetDCBrushColor(dc, previous);
    return painted;
}

} // namespace

bool FillRectangle(HDC dc, const RECT& rectangle, COLORREF colour)
{
    const GdiObject<HBRUSH> brush(CreateSolidBrush(colour));
    if (brush == nullptr) {
        return PaintWithContextsBrush(dc, rectangle, colour);
    }
    return PaintWith(brush.get(), dc, rectangle);
}

void ClearWindowToKey(HWND window)
{
    if (window == nullptr) {
        return; // a null window's device context is the whole screen's
    }
    const WindowDC dc(window);
    RECT client{};
    GetClientRect(window, &client);
    FillRectangle(dc.Get(), client, g_colorKey); // a window that cannot be filled stays as it is
}

} // namespace zq::LM
