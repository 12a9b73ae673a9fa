// The mouse's way since it was last looked at: between two looks it may have gone round a curve.
#pragma once

#include "input/input.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace lumora_pen {

// How many the system keeps.
inline constexpr std::size_t MostMousePoints = 64;

// As the system keeps it: of x and y only the low 16 bits are right, above 32767 they are negative.
struct MousePoint {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::uint32_t time = 0; // milliseconds, which wrap
};

class MouseHistory {
public:
    // The way up to here is no part of what is written.
    void SkipTo(const MousePoint& cursor);

    // Adds what is new, oldest first. Where the system has no history to give, the cursor's place has to
    // serve.
    void Take(std::span<const MousePoint> newestFirst, const MousePoint& cursor,
              std::vector<InputSample>& samples);

    // Where the last stroke has come to, lifted.
    InputSample Lift(std::uint32_t time) const;

private:
    struct Known {
        MousePoint point;
        bool isOfHistory = false; // else its time is not the one that the history has for this place
    };

    std::size_t CountOfNew_(std::span<const MousePoint> newestFirst) const;
    bool IsOfOldVisit_(const MousePoint& newest) const;
    void Know_(const MousePoint& point, bool isOfHistory);

    std::optional<Known> last;
};

} // namespace lumora_pen
