// Asks the system where the mouse is and was.
#include "input/raw_mouse.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace lumora_pen {

namespace {

// 16 bits each: with more the system does not find a place left of or above the first monitor.
int Wrapped(LONG coordinate) { return coordinate & 0xFFFF; }

std::size_t ReadHistory(POINT cursor, std::array<MousePoint, MostMousePoints>& newestFirst)
{
    MOUSEMOVEPOINT from = {Wrapped(cursor.x), Wrapped(cursor.y), 0, 0};
    std::array<MOUSEMOVEPOINT, MostMousePoints> points = {};
    const int count = GetMouseMovePointsEx(sizeof(from), &from, points.data(),
                                           static_cast<int>(points.size()), GMMP_USE_DISPLAY_POINTS);
    const auto most = static_cast<int>(points.size());
    const auto given = static_cast<std::size_t>(std::clamp(count, 0, most));
    for (std::size_t i = 0; i < given; ++i) {
        newestFirst[i] = {points[i].x, points[i].y, points[i].time};
    }
    return given;
}

} // namespace

void RawMouse::Look(std::uint32_t now, std::vector<InputSample>& samples)
{
    if (!isHeld()) {
        Rest(now, samples);
        return;
    }
    POINT cursor = {};
    if (!GetCursorPos(&cursor)) { // another desktop has it
        return;
    }
    std::array<MousePoint, MostMousePoints> newestFirst;
    const std::size_t count = ReadHistory(cursor, newestFirst);
    const std::size_t before = samples.size();
    history.Take(std::span(newestFirst).first(count), {cursor.x, cursor.y, now}, samples);
    writes = writes || samples.size() > before;
}

void RawMouse::Begin(const InputSample& place)
{
    history.SkipTo({static_cast<std::int32_t>(place.x), static_cast<std::int32_t>(place.y), place.time});
    writes = true;
}

void RawMouse::Rest(std::uint32_t now, std::vector<InputSample>& samples)
{
    if (writes) {
        writes = false;
        samples.push_back(history.Lift(now));
    }
    POINT cursor = {};
    if (GetCursorPos(&cursor)) {
        history.SkipTo({cursor.x, cursor.y, now});
    }
}

} // namespace lumora_pen
