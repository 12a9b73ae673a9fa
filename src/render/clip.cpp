// A clip that holds for a while.
#include "render/clip.h"

#include "platform/win32/gdi_owners.h"

#include <span>
#include <utility>

namespace zq::LM {

namespace {

bool ConfineTo(HDC dc, const PaintRectangle& part)
{
    return IntersectClipRect(dc, part.left, part.top, part.right, part.bottom) != ERROR;
}

bool ConfineTo(HDC dc, std::span<const PaintRectangle> parts)
{
    const GdiObject<HRGN> all(CreateRectRgn(0, 0, 0, 0));
    const GdiObject<HRGN> one(CreateRectRgn(0, 0, 0, 0));
    if (all == nullptr || one == nullptr) {
        return false;
    }
    for (const PaintRectangle& part : parts) {
        if (SetRectRgn(one.get(), part.left, part.top, part.right, part.bottom) == FALSE ||
            CombineRgn(all.get(), all.get(), one.get(), RGN_OR) == ERROR) {
            return false;
        }
    }
    return SelectClipRgn(dc, all.get()) != ERROR;
}

bool Confine(HDC dc, const PaintArea& area)
{
    if (dc == nullptr || area.IsEverything()) {
        return false;
    }
    const std::span<const PaintRectangle> parts = area.Rectangles();
    if (parts.empty()) {
        return ConfineTo(dc, PaintRectangle{});
    }
    return parts.size() == 1 ? ConfineTo(dc, parts.front()) : ConfineTo(dc, parts);
}

} // namespace

Clip::Clip(HDC dc, const PaintArea& area) : dc(dc), isSet(Confine(dc, area)) {}

bool Clip::Remove() { return !std::exchange(isSet, false) || SelectClipRgn(dc, nullptr) != ERROR; }

} // namespace zq::LM
