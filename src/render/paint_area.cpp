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

// A clip of one rectangle more costs less than clearing and copying so many pixels.
constexpr std::int64_t SmallArea = 4'096;

std::int64_t Area(const PaintRectangle& rectangle)
{
    return (std::int64_t{rectangle.right} - rectangle.left) *
           (std::int64_t{rectangle.bottom} - rectangle.top);
}

PaintRectangle Around(const PaintRectangle& one, const PaintRectangle& other)
{
    return {std::min(one.left, other.left), std::min(one.top, other.top), std::max(one.right, other.right),
            std::max(one.bottom, other.bottom)};
}

// How many pixels the rectangle around both has beyond theirs; below 0 where they overlap.
std::int64_t Between(const PaintRectangle& one, const PaintRectangle& other)
{
    return Area(Around(one, other)) - Area(one) - Area(other);
}

} // namespace

struct PaintArea::Pair {
    std::size_t first;
    std::size_t second;
    std::int64_t between;
};

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
    for (const PaintRectangle& rectangle : other.Rectangles()) {
        Add(rectangle);
    }
}

// Two are joined when little lies between them, and the two with the least between them when there are too
// many.
void PaintArea::Add(const PaintRectangle& rectangle)
{
    if (rectangle.IsEmpty() || isEverything) {
        return;
    }
    rectangles[count++] = rectangle;
    while (count > 1) {
        const Pair pair = CheapestPair_();
        if (count <= Most && pair.between > SmallArea) {
            return;
        }
        Join_(pair);
    }
}

PaintArea::Pair PaintArea::CheapestPair_() const
{
    Pair cheapest = {0, 1, Between(rectangles[0], rectangles[1])};
    for (std::size_t first = 0; first < count; ++first) {
        for (std::size_t second = first + 1; second < count; ++second) {
            const std::int64_t between = Between(rectangles[first], rectangles[second]);
            if (between < cheapest.between) {
                cheapest = {first, second, between};
            }
        }
    }
    return cheapest;
}

void PaintArea::Join_(const Pair& pair)
{
    rectangles[pair.first] = Around(rectangles[pair.first], rectangles[pair.second]);
    rectangles[pair.second] = rectangles[--count];
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
