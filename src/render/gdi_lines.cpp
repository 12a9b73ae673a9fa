// The two ways in which the GDI back-end can draw a line.
#include "render/gdi_lines.h"

#include "platform/dropped.h"
#include "platform/win32/gdi_owners.h"
#include "platform/win32/gdiplus_flat.h"
#include "render/line_rules.h"

namespace zq::LM {

namespace {

namespace flat = Gdiplus::DllExports;

// Wider than any screen. Far beyond it GDI+ computes outside its integers, and not every GDI+ survives that.
constexpr float WidestPen = 100'000.0F;

// Nobody asks whether a step worked: GDI+ checks its arguments itself, so one that failed makes the following
// ones do nothing, up to the deletion of what was not made.
class Graphics {
public:
    explicit Graphics(HDC dc) { Dropped(flat::GdipCreateFromHDC(dc, &graphics)); }
    ~Graphics() { Dropped(flat::GdipDeleteGraphics(graphics)); }
    Graphics(const Graphics&) = delete;
    Graphics& operator=(const Graphics&) = delete;

    Gdiplus::GpGraphics* Get() const { return graphics; }

private:
    Gdiplus::GpGraphics* graphics = nullptr;
};

class RoundPen {
public:
    RoundPen(std::uint32_t argb, float width)
    {
        Dropped(flat::GdipCreatePen1(argb, width, Gdiplus::UnitWorld, &pen));
        Dropped(flat::GdipSetPenStartCap(pen, Gdiplus::LineCapRound));
        Dropped(flat::GdipSetPenEndCap(pen, Gdiplus::LineCapRound));
    }
    ~RoundPen() { Dropped(flat::GdipDeletePen(pen)); }
    RoundPen(const RoundPen&) = delete;
    RoundPen& operator=(const RoundPen&) = delete;

    Gdiplus::GpPen* Get() const { return pen; }

private:
    Gdiplus::GpPen* pen = nullptr;
};

bool IsVisible(const GdiLine& line) { return (line.colour & OpaqueAlpha) != 0; }

// The hollow stroke of a narrow brush is erased by a line wider than any screen, which is invisible here. A
// thin pen leaves the same pixels; a wide one would take its time to blend nothing into all of them.
float PenWidth(const GdiLine& line)
{
    constexpr float ThinPen = 1.0F;
    const float width = HalfWidthSum(line.width1, line.width2);
    if (width <= WidestPen) {
        return width;
    }
    return IsVisible(line) ? WidestPen : ThinPen;
}

bool HasLength(const GdiLine& line) { return line.x1 != line.x2 || line.y1 != line.y2; }

// GDI+ draws no caps on a line without length: here it gets too little to be seen.
void DrawDot(const Graphics& graphics, const RoundPen& pen, int x, int y)
{
    constexpr float Unseen = 0.1F;
    const auto left = static_cast<float>(x);
    const auto top = static_cast<float>(y);
    Dropped(flat::GdipDrawLine(graphics.Get(), pen.Get(), left, top, left + Unseen, top));
}

} // namespace

// Keeps nothing for the next one: a stroke has too few segments for that to show.
void DrawGdiPlusLine(HDC dc, const GdiLine& line)
{
    const Graphics graphics(dc);
    const RoundPen pen(GdiPlusColour(line.colour), PenWidth(line));
    Dropped(flat::GdipDrawLineI(graphics.Get(), pen.Get(), line.x1, line.y1, line.x2, line.y2));
    if (!HasLength(line) && IsVisible(line)) {
        DrawDot(graphics, pen, line.x1, line.y1);
    }
}

void DrawPlainLine(HDC dc, const GdiLine& line)
{
    constexpr COLORREF ColourBits = 0x00FFFFFF;
    const int width = static_cast<int>(MixWidths(line.width1, line.width2));
    const GdiObject<HPEN> pen(CreatePen(PS_INSIDEFRAME, width, line.colour & ColourBits));
    const SelectedObject selected(dc, pen.get());
    MoveToEx(dc, line.x1, line.y1, nullptr);
    LineTo(dc, line.x2, line.y2);
}

} // namespace zq::LM
