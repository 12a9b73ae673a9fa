// The ink of the Board that has dried.
#include "board/dry_canvas.h"

#include "board/gdi_plus.h"
#include "ink/clip_line.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <utility>

namespace lumora_pen {

namespace {

constexpr double MostWidth = 4096;   // pixels; what is wider is a mistake
constexpr double ShortestLine = 0.5; // shorter, its direction and with it its round ends are doubtful

double BoundedWidth(double width) { return width >= 1 ? (std::min)(width, MostWidth) : 1.0; }

Gdiplus::Color Opaque(const lumora::Colour& colour) { return {255, colour.red, colour.green, colour.blue}; }

void DrawDot(Gdiplus::Graphics& graphics, const Gdiplus::Color& colour, double x, double y, double width)
{
    const Gdiplus::SolidBrush brush(colour);
    const auto size = static_cast<float>(width);
    graphics.FillEllipse(&brush, static_cast<float>(x - width / 2), static_cast<float>(y - width / 2), size,
                         size);
}

// `from` and `to` in pixels of the bitmap. GDI+ has no use for positions that are far away.
void DrawSegment(Gdiplus::Graphics& graphics, const Gdiplus::Color& colour, const Line& segment,
                 double wanted, const PixelRectangle& area)
{
    const double width = BoundedWidth(wanted);
    const double reach = width + 2; // what ends there has its round end outside too
    const auto line = ClipLine(segment, {-reach, -reach, area.Width() + reach, area.Height() + reach});
    if (!line) {
        return;
    }
    if (std::hypot(line->x2 - line->x1, line->y2 - line->y1) < ShortestLine) {
        DrawDot(graphics, colour, line->x2, line->y2, width);
        return;
    }
    Gdiplus::Pen pen(colour, static_cast<float>(width));
    pen.SetStartCap(Gdiplus::LineCapRound);
    pen.SetEndCap(Gdiplus::LineCapRound);
    graphics.DrawLine(&pen, static_cast<float>(line->x1), static_cast<float>(line->y1),
                      static_cast<float>(line->x2), static_cast<float>(line->y2));
}

} // namespace

class DryCanvas::GdiPlus {
public:
    GdiPlus()
    {
        const Gdiplus::GdiplusStartupInput input;
        isThere = Gdiplus::GdiplusStartup(&token, &input, nullptr) == Gdiplus::Ok;
    }
    ~GdiPlus()
    {
        if (isThere) {
            Gdiplus::GdiplusShutdown(token);
        }
    }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

    bool IsThere() const { return isThere; }

private:
    ULONG_PTR token = 0;
    bool isThere = false;
};

// A bitmap that GDI, GDI+ and we reach alike.
class DryCanvas::Surface {
public:
    explicit Surface(const PixelRectangle& area) : area(area), dc(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof(info.bmiHeader);
        info.bmiHeader.biWidth = area.Width();
        info.bmiHeader.biHeight = -area.Height(); // from the top
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        pixels = static_cast<std::uint32_t*>(bits);
        if (dc == nullptr || bitmap == nullptr || pixels == nullptr) {
            return;
        }
        previous = SelectObject(dc, bitmap);
        image.emplace(area.Width(), area.Height(), area.Width() * 4, PixelFormat32bppPARGB,
                      static_cast<BYTE*>(bits));
        graphics.emplace(&*image);
        graphics->SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
        std::fill_n(pixels, Count_(), Ground);
    }
    ~Surface()
    {
        graphics.reset();
        image.reset();
        if (previous != nullptr) {
            SelectObject(dc, previous);
        }
        DeleteObject(bitmap);
        DeleteDC(dc);
    }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    bool IsWhole() const
    {
        return previous != nullptr && image->GetLastStatus() == Gdiplus::Ok &&
               graphics->GetLastStatus() == Gdiplus::Ok;
    }

    std::uint32_t* RowFrom(std::int32_t x, std::int32_t y) const // of the screen
    {
        return pixels + static_cast<std::ptrdiff_t>(y - area.top) * area.Width() + (x - area.left);
    }

    const PixelRectangle area;
    const HDC dc;
    std::uint32_t* pixels = nullptr;
    std::optional<Gdiplus::Graphics> graphics;

private:
    std::size_t Count_() const
    {
        return static_cast<std::size_t>(area.Width()) * static_cast<std::size_t>(area.Height());
    }

    HBITMAP bitmap = nullptr;
    HGDIOBJ previous = nullptr;
    std::optional<Gdiplus::Bitmap> image;
};

DryCanvas::DryCanvas() = default;

DryCanvas::~DryCanvas() = default;

bool DryCanvas::Make(const PixelRectangle& area)
{
    Free();
    surface = MakeSurface_(area);
    return IsMade();
}

bool DryCanvas::MoveTo(const PixelRectangle& area)
{
    auto next = MakeSurface_(area);
    if (next == nullptr) {
        return false;
    }
    const PixelRectangle kept = Common(inked, area);
    for (std::int32_t y = kept.top; y < kept.bottom; ++y) {
        std::copy_n(surface->RowFrom(kept.left, y), kept.Width(), next->RowFrom(kept.left, y));
    }
    surface = std::move(next);
    inked = kept;
    return true;
}

void DryCanvas::Free()
{
    Wipe(); // what was written is nobody's business once the memory is another's
    surface.reset();
}

PixelRectangle DryCanvas::Draw(std::span<const InkPoint> points, const lumora::Colour& colour)
{
    if (!IsMade() || points.empty()) {
        return {};
    }
    const PixelRectangle& area = surface->area;
    for (std::size_t i = points.size() == 1 ? 0 : 1; i < points.size(); ++i) {
        const InkPoint& from = points[i > 0 ? i - 1 : 0];
        const InkPoint& to = points[i];
        DrawSegment(*surface->graphics, Opaque(colour),
                    {from.x - area.left, from.y - area.top, to.x - area.left, to.y - area.top}, to.width,
                    area);
    }
    const PixelRectangle changed = Touched(points, area);
    inked = Around(inked, changed);
    return changed;
}

PixelRectangle DryCanvas::Wipe()
{
    const PixelRectangle wiped = inked;
    for (std::int32_t y = wiped.top; y < wiped.bottom; ++y) {
        std::fill_n(surface->RowFrom(wiped.left, y), wiped.Width(), Ground);
    }
    inked = {};
    return wiped;
}

PixelRectangle DryCanvas::Area() const { return IsMade() ? surface->area : PixelRectangle{}; }

HDC DryCanvas::DC() const { return IsMade() ? surface->dc : nullptr; }

const std::uint32_t* DryCanvas::Pixels() const { return IsMade() ? surface->pixels : nullptr; }

std::unique_ptr<DryCanvas::Surface> DryCanvas::MakeSurface_(const PixelRectangle& area)
{
    if (gdiPlus == nullptr) {
        gdiPlus = std::make_unique<GdiPlus>();
    }
    if (!gdiPlus->IsThere() || area.IsEmpty()) {
        return nullptr;
    }
    auto made = std::make_unique<Surface>(area);
    if (!made->IsWhole()) {
        made.reset();
    }
    return made;
}

} // namespace lumora_pen
