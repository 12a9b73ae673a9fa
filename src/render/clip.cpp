// A clip that holds for a while.
#include "render/clip.h"

#include <utility>

namespace zq::LM {

namespace {

bool Confine(HDC dc, const PaintArea& area)
{
    const PaintRectangle& bounds = area.Bounds();
    return dc != nullptr && !area.IsEverything() &&
           IntersectClipRect(dc, bounds.left, bounds.top, bounds.right, bounds.bottom) != ERROR;
}

} // namespace

Clip::Clip(HDC dc, const PaintArea& area) : dc(dc), isSet(Confine(dc, area)) {}

bool Clip::Remove() { return !std::exchange(isSet, false) || SelectClipRgn(dc, nullptr) != ERROR; }

} // namespace zq::LM
