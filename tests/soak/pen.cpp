// The scripted pen.
#include "soak/pen.h"

#include <cmath>

namespace zq::LM::soak {

namespace {

constexpr int FullPressure = 32767;
constexpr double FullTurn = 6.283185307179586;

// A place between two, by the sine of so many turns.
std::int32_t Swing(LONG low, LONG high, double turns)
{
    const double middle = (static_cast<double>(low) + static_cast<double>(high)) / 2;
    const double reach = (static_cast<double>(high) - static_cast<double>(low)) / 2;
    return static_cast<std::int32_t>(std::lround(middle + reach * std::sin(FullTurn * turns)));
}

} // namespace

Pen::Pen(const RECT& area, Random& random)
    : area(area), turnsX(random.Between(10, 60) / 100.0), turnsY(random.Between(10, 60) / 100.0),
      strokeLength(random.Between(60, 500))
{
}

std::vector<LM_PenData> Pen::Due(double seconds)
{
    std::vector<LM_PenData> due;
    while (number <= static_cast<int>(seconds * SamplesASecond)) {
        due.push_back(Next_());
    }
    return due;
}

LM_PenData Pen::Lifted() const
{
    LM_PenData lifted = last;
    lifted.pressure = 0;
    return lifted;
}

std::vector<LM_PenData> Pen::Line() const
{
    LM_PenData from{};
    from.time = 1;
    from.x = area.left;
    from.y = (area.top + area.bottom) / 2;
    from.pressure = FullPressure;
    LM_PenData to = from;
    to.x = area.right;
    return {from, to};
}

LM_PenData Pen::Next_()
{
    const double seconds = number / SamplesASecond;
    const int place = number % strokeLength;
    last = {};
    last.time = 1;
    last.x = Swing(area.left, area.right, turnsX * seconds);
    last.y = Swing(area.top, area.bottom, turnsY * seconds + 0.25);
    last.pressure = place < strokeLength * 4 / 5 ? 1 + (place * 211) % FullPressure : 0;
    ++number;
    return last;
}

} // namespace zq::LM::soak
