// The GDI back-end.
#include "render/gdi.h"

#include "log/debug_log.h"
#include "platform/dropped.h"
#include "platform/win32/gdiplus_flat.h"
#include "render/gdi_lines.h"
#include "render/key_fill.h"
#include "render/layered_window.h"
#include "render/line_rules.h"

namespace zq::LM {

GDI::GDI(PaintRecord& record) : record(record)
{
    LogAtNormal(L"zq::LM::GDI::GDI(Constructor)\n");
    startupInput = std::make_unique<Gdiplus::GdiplusStartupInput>();
    Dropped(
        Gdiplus::GdiplusStartup(&gdiplusToken, startupInput.get(), nullptr)); // without it lines draw nothing
}

GDI::~GDI()
{
    LogAtNormal(L"zq::LM::GDI::~GDI(Destructor)\n");
    Gdiplus::GdiplusShutdown(gdiplusToken);
    dc = nullptr;
    startupInput.reset();
}

bool GDI::InitTransparentWindow(HWND newWindow, unsigned colorKey)
{
    constexpr BYTE Opacity = 192;                       // three quarters
    LogAtNormal(L"zq::LM::GDI::InitTransparentWindow"); // without a line end
    window = newWindow;
    keyColour = colorKey;
    record.SetWindowOpaque(!LetKeyThrough(window, colorKey, Opacity, LWA_COLORKEY | LWA_ALPHA));
    return true;
}

bool GDI::Clear()
{
    if (!IsReady_()) {
        return false;
    }
    // As large as the window, which at the one scale there is, 1, is as large as the bitmap.
    RECT client{};
    const bool isSized = GetClientRect(window, &client) != 0;
    if (!FillRectangle(dc, client, keyColour) || !isSized) {
        record.ForgetBitmap(); // the frame is drawn over the one before
    }
    return true;
}

bool GDI::Present() { return true; }

void GDI::DrawLine(int x1, int y1, unsigned width1, unsigned colour1, int x2, int y2, unsigned width2,
                   unsigned colour2)
{
    const GdiLine line = {x1, y1, width1, x2, y2, width2, MixColors(colour1, colour2)};
    if (useGdiPlus) {
        DrawGdiPlusLine(dc, line);
    } else {
        DrawPlainLine(dc, line);
    }
}

void GDI::DrawText(const wchar_t* text, int x, int y, unsigned colour)
{
    constexpr COLORREF ShadowColour = 0x00C0C0C0;
    const int length = lstrlenW(text);
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, ShadowColour);
    TextOutW(dc, x + 1, y, text, length);
    TextOutW(dc, x + 1, y + 1, text, length);
    TextOutW(dc, x, y + 1, text, length);
    SetTextColor(dc, colour);
    TextOutW(dc, x, y, text, length);
}

void GDI::SetMemoryDC(HDC newDC) { dc = newDC; }

} // namespace zq::LM
