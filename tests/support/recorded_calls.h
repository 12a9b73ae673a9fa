// A set of callbacks for the ink engine that keeps every call, in order, as a value that compares and prints.
#pragma once

#include "ink/drawing.h"

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace zq::LM::test {

struct Call {
    std::string name;
    std::vector<std::int64_t> arguments; // widths and colours unsigned, as the engine hands them out
    bool operator==(const Call&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Call& call);

using Calls = std::vector<Call>;

struct Point {
    std::int32_t x;
    std::int32_t y;
};

// The calls as a test expects them. Both ends of a line have one width and one colour.
Call Clear();
Call Present();
Call PickColor(bool clearFlag);
Call DrawLine(Point from, Point to, std::uint32_t width, std::uint32_t colour);
Call EraseLine(Point from, Point to, std::uint32_t width, std::uint32_t colour);
Call DrawPenData(std::size_t samples, std::uint32_t brushSize, std::uint32_t colour);

// Lives longer than the engine it is bound to.
class RecordedCalls {
public:
    void BindTo(Drawing& drawing);

    // The calls since the last time, without clear and present where a test looks at what lies between them.
    Calls Take();
    Calls TakeBetweenClearAndPresent();

    std::uint32_t screenColour = 0x00123456;        // what picking returns
    std::function<void(bool clearFlag)> whenPicked; // runs inside a pick
    std::vector<PenData> penData;                   // the samples of the last pen-data call

private:
    void Add_(Call call);

    Calls calls;
};

} // namespace zq::LM::test
