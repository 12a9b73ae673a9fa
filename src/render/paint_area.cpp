// Which part of the memory bitmap and of the window a frame has to touch.
#include "render/paint_area.h"

#include <algorithm>
#include <utility>

namespace zq::LM {

namespace {

constexpr std::int32_t FarthestCoordinate = 16'383;
constexpr std::uint32_t WidestLine = 4'096;
constexpr std::int32_t Slack = 2; // rounding, on either side

bool IsNear(std::int32_t coordinate)
{
    return coordinate >= -FarthestCoordinate && coordinate <= FarthestCoordinate;
}

} // namespace

bool operator==(const PaintRectangle& left, const PaintRectangle& right)
{
    return left.left == right.left && left.top == right.top && left.right == right.right &&
           left.bottom == right.bottom;
}

PaintArea PaintArea::Everything()
{
    PaintArea all;
    all.isEverything = true;
    return all;
}

void PaintArea::AddLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                        std::uint32_t width)
{
    if (width > WidestLine || !IsNear(x1) || !IsNear(y1) || !IsNear(x2) || !IsNear(y2)) {
        isEverything = true;
        return;
    }
    const std::int32_t reach = static_cast<std::int32_t>((width + 1) / 2) + Slack;
    Add(PaintRectangle{std::min(x1, x2) - reach, std::min(y1, y2) - reach, std::max(x1, x2) + reach + 1,
                       std::max(y1, y2) + reach + 1});
}

void PaintArea::Add(const PaintArea& other)
{
    isEverything = isEverything || other.isEverything;
    Add(other.bounds);
}

void PaintArea::Add(const PaintRectangle& rectangle)
{
    if (rectangle.IsEmpty()) {
        return;
    }
    if (bounds.IsEmpty()) {
        bounds = rectangle;
        return;
    }
    bounds = {std::min(bounds.left, rectangle.left), std::min(bounds.top, rectangle.top),
              std::max(bounds.right, rectangle.right), std::max(bounds.bottom, rectangle.bottom)};
}

void PaintRecord::Forget()
{
    ForgetBitmap();
    ForgetWindow();
}

PaintArea PaintRecord::BeginFrame()
{
    if (std::exchange(isOpen, true)) {
        Forget();
    }
    return std::exchange(bitmap, {});
}

void PaintRecord::AddLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                          std::uint32_t width)
{
    bitmap.AddLine(x1, y1, x2, y2, width);
}

PaintArea PaintRecord::ToCopy() const
{
    PaintArea both = window;
    both.Add(bitmap);
    return both;
}

void PaintRecord::EndFrame()
{
    isOpen = false;
    window = bitmap;
}

} // namespace zq::LM
