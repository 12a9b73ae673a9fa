// A frame of GDI's and GDI+'s calls.
#include "bare_overlay.h"

#include "platform/dropped.h"
#include "platform/win32/gdiplus_flat.h"

namespace zq::LM::bench {

namespace {

namespace flat = Gdiplus::DllExports;

constexpr Gdiplus::ARGB LineColour = 0xFF000000 | Ink::Grey << 16 | Ink::Grey << 8 | Ink::Grey;

class Gdi final : public BareBackEnd {
public:
    Gdi()
    {
        const Gdiplus::GdiplusStartupInput input;
        Dropped(Gdiplus::GdiplusStartup(&token, &input, nullptr));
    }
    ~Gdi() override { Gdiplus::GdiplusShutdown(token); }
    Gdi(const Gdi&) = delete;
    Gdi& operator=(const Gdi&) = delete;

    void Bind(HWND window) override
    {
        constexpr BYTE Opacity = 192;
        SetLayeredWindowAttributes(window, Key, Opacity, LWA_COLORKEY | LWA_ALPHA);
        bitmap.Create(window);
    }

    void Paint(HWND window, const Ink& ink) override
    {
        Clear_(window, ink.bounds);
        for (std::size_t i = 0; i + 1 < ink.points.size(); ++i) {
            Draw_(ink.points[i], ink.points[i + 1]);
        }
        bitmap.CopyTo(window, ink.bounds);
    }

private:
    void Clear_(HWND window, const RECT& part) const
    {
        HDC dc = bitmap.DC();
        RECT client = {};
        GetClientRect(window, &client);
        IntersectClipRect(dc, part.left, part.top, part.right, part.bottom);
        {
            const GdiObject<HBRUSH> brush(CreateSolidBrush(Key));
            const SelectedObject selected(dc, brush.get());
            PatBlt(dc, 0, 0, client.right, client.bottom, PATCOPY);
        }
        SelectClipRgn(dc, nullptr);
    }

    void Draw_(const POINT& from, const POINT& to) const
    {
        Gdiplus::GpGraphics* graphics = nullptr;
        Gdiplus::GpPen* pen = nullptr;
        Dropped(flat::GdipCreateFromHDC(bitmap.DC(), &graphics));
        Dropped(flat::GdipCreatePen1(LineColour, Ink::Width, Gdiplus::UnitWorld, &pen));
        Dropped(flat::GdipSetPenStartCap(pen, Gdiplus::LineCapRound));
        Dropped(flat::GdipSetPenEndCap(pen, Gdiplus::LineCapRound));
        Dropped(flat::GdipDrawLineI(graphics, pen, from.x, from.y, to.x, to.y));
        Dropped(flat::GdipDeletePen(pen));
        Dropped(flat::GdipDeleteGraphics(graphics));
    }

    ULONG_PTR token = 0;
    BareBitmap bitmap;
};

} // namespace

std::unique_ptr<BareBackEnd> BareGdi() { return std::make_unique<Gdi>(); }

} // namespace zq::LM::bench
