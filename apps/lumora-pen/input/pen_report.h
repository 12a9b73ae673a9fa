// From the numbers of a pen's reports to places on the screen.
#pragma once

#include "input/input.h"
#include "input/pixel_rectangle.h"

#include <cstdint>
#include <optional>

namespace lumora_pen {

// Both ends belong to it.
struct LogicalRange {
    std::int32_t least = 0;
    std::int32_t most = 0;
};

bool IsUsable(const LogicalRange& range);

// As the device's descriptor means it: a most that looks negative beside a least that is not has lost its
// sign to a descriptor that saved a byte.
LogicalRange RangeOf(std::int32_t least, std::int32_t most, unsigned bitSize);

// What so many bits of a report stand for.
std::int32_t ValueOf(std::uint32_t bits, unsigned bitSize, const LogicalRange& range);

struct PenReport {
    std::optional<std::int32_t> x; // none: the device does not know at the moment
    std::optional<std::int32_t> y;
    std::optional<std::int32_t> pressure; // none: the pen feels none
    bool isInRange = false;
    bool touches = false;
    bool isInverted = false; // the eraser's end, which does not write
};

struct PenRanges {
    LogicalRange x;
    LogicalRange y;
    LogicalRange pressure; // not usable: a touch is a touch
};

// How the display is turned against its digitizer, whose own axes stay: by so much is a report's place turned
// clockwise to stand upright.
enum class Turn { None, Quarter, Half, ThreeQuarters };

struct PenPlace {
    PixelRectangle display;
    Turn turn = Turn::None;
};

// The strokes of one device.
class PenReports {
public:
    // Nothing when the report says nothing about the pen's way, or cannot be placed.
    std::optional<InputSample> Take(const PenReport& report, const PenRanges& ranges, const PenPlace& place,
                                    std::uint32_t time);

    // The pen has left the range, or its device the computer: a stroke ends where it was.
    std::optional<InputSample> Leave(std::uint32_t time);

    bool IsInRange() const { return last.has_value(); }

private:
    std::optional<InputSample> last; // while the pen is in range
};

} // namespace lumora_pen
