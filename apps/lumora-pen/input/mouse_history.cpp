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

// What was never filled is all zero.
std::span<const MousePoint> Filled(std::span<const MousePoint> newestFirst)
{
    const auto unfilled = std::find_if(newestFirst.begin(), newestFirst.end(), [](const MousePoint& point) {
        return point.x == 0 && point.y == 0 && point.time == 0;
    });
    return newestFirst.first(static_cast<std::size_t>(unfilled - newestFirst.begin()));
}

} // namespace

void MouseHistory::SkipTo(const MousePoint& cursor) { Know_(Unwrapped(cursor), false); }

void MouseHistory::Take(std::span<const MousePoint> newestFirst, const MousePoint& cursor,
                        std::vector<InputSample>& samples)
{
    const auto points = Filled(newestFirst.first((std::min)(newestFirst.size(), MostMousePoints)));
    if (points.empty() || IsOfOldVisit_(Unwrapped(points.front()))) {
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
    // Stamps are of more than one clock, each may stand still, and a mouse that rests may be given another
    // one: so the point says more than its place, and its place more than its time.
    const auto isPlace = [this](const MousePoint& point) {
        return IsSamePlace(Unwrapped(point), last->point);
    };
    const auto isPoint = [&](const MousePoint& point) {
        return isPlace(point) && (!last->isOfHistory || point.time == last->point.time);
    };
    const auto isOld = [this](const MousePoint& point) { return !IsLater(point.time, last->point.time); };

    auto known = std::find_if(newestFirst.begin(), newestFirst.end(), isPoint);
    if (known == newestFirst.end()) {
        known = std::find_if(newestFirst.begin(), newestFirst.end(), isPlace);
    }
    if (known == newestFirst.end()) { // the newest is new, for the mouse has moved
        known = std::find_if(newestFirst.begin() + 1, newestFirst.end(), isOld);
    }
    return static_cast<std::size_t>(known - newestFirst.begin());
}

// The system is asked for the history up to the cursor's place. Where it has not noted yet that the cursor is
// there, it finds an earlier time that it was.
bool MouseHistory::IsOfOldVisit_(const MousePoint& newest) const
{
    constexpr std::uint32_t MostBehindMs = 200; // of the history's clock
    return last && IsLater(last->point.time, newest.time) &&
           (last->isOfHistory || last->point.time - newest.time > MostBehindMs);
}

void MouseHistory::Know_(const MousePoint& point, bool isOfHistory) { last = Known{point, isOfHistory}; }

} // namespace lumora_pen
