// Which points of the system's history are new.
#include "input/mouse_history.h"

#include <algorithm>

namespace lumora_pen {

namespace {

std::int32_t Unwrapped(std::int32_t coordinate)
{
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(coordinate));
}

MousePoint Unwrapped(const MousePoint& point) { return {Unwrapped(point.x), Unwrapped(point.y), point.time}; }

// Also over the wrap.
bool IsLater(std::uint32_t time, std::uint32_t than) { return static_cast<std::int32_t>(time - than) > 0; }

bool IsSamePlace(const MousePoint& left, const MousePoint& right)
{
    return left.x == right.x && left.y == right.y;
}

InputSample SampleOf(const MousePoint& point, std::int32_t pressure)
{
    return {static_cast<double>(point.x), static_cast<double>(point.y), pressure, point.time};
}

// Places of the history that were never filled are all zero: time runs backwards only up to them.
std::span<const MousePoint> InOrder(std::span<const MousePoint> newestFirst)
{
    const auto disorder = std::adjacent_find(
        newestFirst.begin(), newestFirst.end(), [](const MousePoint& newer, const MousePoint& older) {
            return IsLater(older.time, newer.time) || (older.time == 0 && newer.time != 0);
        });
    if (disorder == newestFirst.end()) {
        return newestFirst;
    }
    return newestFirst.first(static_cast<std::size_t>(disorder - newestFirst.begin()) + 1);
}

} // namespace

void MouseHistory::SkipTo(const MousePoint& cursor) { Know_(Unwrapped(cursor), false); }

void MouseHistory::Take(std::span<const MousePoint> newestFirst, const MousePoint& cursor,
                        std::vector<InputSample>& samples)
{
    const auto points = InOrder(newestFirst.first((std::min)(newestFirst.size(), MostMousePoints)));
    if (points.empty()) {
        const MousePoint place = Unwrapped(cursor);
        if (!last || !IsSamePlace(last->point, place)) {
            samples.push_back(SampleOf(place, FullPressure));
            Know_(place, false);
        }
        return;
    }
    const std::size_t count = CountOfNew_(points);
    for (std::size_t i = count; i > 0; --i) {
        samples.push_back(SampleOf(Unwrapped(points[i - 1]), FullPressure));
    }
    if (count > 0) {
        Know_(Unwrapped(points.front()), true);
    }
}

InputSample MouseHistory::Lift(std::uint32_t time) const
{
    InputSample sample = SampleOf(last ? last->point : MousePoint{}, 0);
    sample.time = time;
    return sample;
}

std::size_t MouseHistory::CountOfNew_(std::span<const MousePoint> newestFirst) const
{
    if (!last) {
        return 1;
    }
    // The system's clock may stand still for several points, so the point itself says more than its time.
    const auto known = std::find_if(newestFirst.begin(), newestFirst.end(), [this](const MousePoint& point) {
        return IsSamePlace(Unwrapped(point), last->point) &&
               (!last->isOfHistory || point.time == last->point.time);
    });
    const auto end =
        known != newestFirst.end()
            ? known
            : std::find_if(newestFirst.begin(), newestFirst.end(), [this](const MousePoint& point) {
                  return !IsLater(point.time, last->point.time);
              });
    return static_cast<std::size_t>(end - newestFirst.begin());
}

void MouseHistory::Know_(const MousePoint& point, bool isOfHistory) { last = Known{point, isOfHistory}; }

} // namespace lumora_pen
