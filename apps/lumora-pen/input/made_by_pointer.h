// Mouse messages and reports that the system makes of pens and fingers, for programs that know no others.
#pragma once

#include <cstdint>

namespace lumora_pen {

// By the mark that comes with them (Microsoft's documentation of tablets: "Distinguishing Pen Input from
// Mouse and Touch").
inline bool IsMadeByPointer(std::uint64_t extraInformation)
{
    constexpr std::uint64_t Mark = 0xFF515700;
    constexpr std::uint64_t MarkBits = 0xFFFFFF00;
    return (extraInformation & MarkBits) == Mark;
}

} // namespace lumora_pen
