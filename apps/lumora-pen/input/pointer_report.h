// What the system's numbers for a pen or a finger mean.
#pragma once

#include "input/input.h"
#include "input/pixel_rectangle.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace lumora_pen {

// The system reports pressure from 0 to 1024. A pen that feels none writes at full width, and what touches is
// never 0, however light it is: that would end the stroke.
std::int32_t TouchPressure(std::optional<std::uint32_t> reported);

struct WholePosition {
    std::int32_t x = 0;
    std::int32_t y = 0;
};

struct Position {
    double x = 0;
    double y = 0;
};

// A tablet's surface in its own fine units, hundredths of millimetres, and the part of the screen that it
// stands for.
struct Tablet {
    PixelRectangle surface;
    PixelRectangle display;
};

// The place with fractions of pixels that the surface tells. The system's own whole pixel serves where the
// tablet does not say how large it is, and where the two do not agree, as on a turned screen: there the
// surface is measured in another way.
Position PlaceOnScreen(WholePosition fine, WholePosition pixel, const Tablet& tablet);

// How much to ask for of the history of a message. After a stall it may be of any length: this is a second of
// a fast pen.
std::uint32_t HistoryToAsk(std::uint32_t available);

// The system fills the buffer newest first, and says how many there are, which may be more than fit.
template <typename Report> void TurnOldestFirst(std::vector<Report>& buffer, std::size_t available)
{
    buffer.resize((std::min)(available, buffer.size()));
    std::reverse(buffer.begin(), buffer.end());
}

} // namespace lumora_pen
