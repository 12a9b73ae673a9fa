// The two ways in which the GDI back-end can draw a line.
#include "render/gdi_lines.h"

#include "platform/win32/gdi_owners.h"
#include "platform/win32/gdiplus_flat.h"
#include "render/line_rules.h"

#include <algorithm>
#include <memory>

namespace zq::LM {

namespace {

namespace flat = Gdiplus::DllExports;

// Wider than any screen. Beyond some width GDI+ computes outside its integers, and not every GDI+ survives
// that.
constexpr float WidestPen = 100'000.0F;

struct GraphicsDeleter {
    void operator()(Gdiplus::GpGraphics* graphics) const { flat::GdipDeleteGraphics(graphics); }
};

struct PenDeleter {
    void operator()(Gdiplus::GpPen* pen) const { flat::GdipDeletePen(pen); }
};

std::unique_ptr<Gdiplus::GpGraphics, GraphicsDeleter> MakeGraphics(HDC dc)
{
    Gdiplus::GpGraphics* graphics = nullptr;
    flat::GdipCreateFromHDC(dc, &graphics);
    return std::unique_ptr<Gdiplus::GpGraphics, GraphicsDeleter>(graphics);
}

std::unique_ptr<Gdiplus::GpPen, PenDeleter> MakeRoundPen(std::uint32_t argb, float width)
{
    Gdiplus::GpPen* pen = nullptr;
    flat::GdipCreatePen1(argb, width, Gdiplus::UnitWorld, &pen);
    flat::GdipSetPenStartCap(pen, Gdiplus::LineCapRound);
    flat::GdipSetPenEndCap(pen, Gdiplus::LineCapRound);
    return std::unique_ptr<Gdiplus::GpPen, PenDeleter>(pen);
}

// GDI+ draws no caps on a line without length: give it too little to be seen.
void DrawDot(Gdiplus::GpGraphics* graphics, Gdiplus::GpPen* pen, int x, int y)
{
    constexpr float Unseen = 0.1F;
    const auto left = static_cast<float>(x);
    const auto top = static_cast<float>(y);
    flat::GdipDrawLine(graphics, pen, left, top, left + Unseen, top);
}

} // namespace

// Made anew for every segment: simple, and nothing is kept between calls. GDI+ checks its arguments itself,
// so a step that failed makes the following ones do nothing.
void DrawGdiPlusLine(HDC dc, const GdiLine& line)
{
    const float width = HalfWidthSum(line.width1, line.width2);
    const bool isVisible = (line.colour & OpaqueAlpha) != 0;
    if (!isVisible && width > WidestPen) {
        return; // as a hollow stroke of a narrow brush erases: invisible, and costly over the whole bitmap
    }
    const auto graphics = MakeGraphics(dc);
    const auto pen = MakeRoundPen(GdiPlusColour(line.colour), std::min(width, WidestPen));
    if (line.x1 == line.x2 && line.y1 == line.y2) {
        DrawDot(graphics.get(), pen.get(), line.x1, line.y1);
        return;
    }
    flat::GdipDrawLineI(graphics.get(), pen.get(), line.x1, line.y1, line.x2, line.y2);
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
