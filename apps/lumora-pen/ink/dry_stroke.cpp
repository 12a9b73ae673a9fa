// How a stroke dries.
#include "ink/dry_stroke.h"

#include <algorithm>
#include <cmath>

namespace lumora_pen {

namespace {

// A stamp from the future, as another clock may give it, has no age yet.
bool HasAge(std::uint32_t time, std::uint32_t now, std::uint32_t age)
{
    constexpr std::uint32_t HalfTheClock = 0x80000000U;
    const std::uint32_t passed = now - time;
    return passed < HalfTheClock && passed >= age;
}

bool IsDrawable(const InkPoint& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.width);
}

std::int32_t Bounded(double value, std::int32_t least, std::int32_t most)
{
    return static_cast<std::int32_t>(std::clamp<double>(value, least, most));
}

// Of a segment, whose ends are round.
PixelRectangle TouchedBySegment(const InkPoint& from, const InkPoint& to, const PixelRectangle& area)
{
    if (!IsDrawable(from) || !IsDrawable(to)) {
        return {};
    }
    constexpr double Blur = 2; // of antialiased edges, and of rounding
    const double reach = (std::max)(to.width, 0.0) / 2 + Blur;
    const PixelRectangle touched = {
        Bounded(std::floor((std::min)(from.x, to.x) - reach), area.left, area.right),
        Bounded(std::floor((std::min)(from.y, to.y) - reach), area.top, area.bottom),
        Bounded(std::ceil((std::max)(from.x, to.x) + reach), area.left, area.right),
        Bounded(std::ceil((std::max)(from.y, to.y) + reach), area.top, area.bottom)};
    return touched.IsEmpty() ? PixelRectangle{} : touched;
}

} // namespace

void DryStroke::Add(const InkPoint& point)
{
    ForgetGiven_();
    points.push_back(point);
}

std::span<const InkPoint> DryStroke::Dry(std::uint32_t now, std::uint32_t age)
{
    ForgetGiven_();
    std::size_t last = 0;
    while (last + 1 < points.size() && HasAge(points[last].time, now, age)) {
        ++last;
    }
    return last > 0 ? GiveUpTo_(last) : std::span<const InkPoint>();
}

std::span<const InkPoint> DryStroke::DryRest()
{
    ForgetGiven_();
    const bool isDot = points.size() == 1 && !hasDried;
    return points.size() > 1 || isDot ? GiveUpTo_(points.size() - 1) : std::span<const InkPoint>();
}

// What has dried is the bitmap's: a stroke costs no more the longer it gets.
void DryStroke::ForgetGiven_()
{
    points.erase(points.begin(), points.begin() + static_cast<std::ptrdiff_t>(given));
    given = 0;
}

std::span<const InkPoint> DryStroke::GiveUpTo_(std::size_t last)
{
    hasDried = true;
    given = last;
    return std::span(points).first(last + 1);
}

PixelRectangle Touched(std::span<const InkPoint> points, const PixelRectangle& area)
{
    PixelRectangle all;
    for (std::size_t i = points.size() == 1 ? 0 : 1; i < points.size(); ++i) {
        all = Around(all, TouchedBySegment(points[i > 0 ? i - 1 : 0], points[i], area));
    }
    return all;
}

} // namespace lumora_pen
