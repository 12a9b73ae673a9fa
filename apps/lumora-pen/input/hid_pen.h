// Decodes a pen's reports by what its descriptor says of them.
#pragma once

#include "input/pen_report.h"

#include <windows.h>

extern "C" { // the header does not say so by itself
#include <hidsdi.h>
}

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace lumora_pen {

// Where a value lies in a report.
struct HidValue {
    USHORT page = 0;
    USHORT usage = 0;
    USHORT collection = 0;
    USHORT bitSize = 0;
    bool hasNull = false; // a value outside of the range says that there is none
    LogicalRange range;
};

// One kind of report: a device may send others under other numbers.
struct HidPenLayout {
    UCHAR reportId = 0;
    HidValue x;
    HidValue y;
    std::optional<HidValue> pressure;
    PenRanges ranges;
    bool hasInRange = false;
};

struct HidPenReading {
    PenReport report;
    PenRanges ranges;
};

class HidPen {
public:
    explicit HidPen(std::vector<std::byte> preparsedData);

    // The descriptor tells of a place and of a tip.
    bool IsReadable() const { return !layouts.empty(); }

    // Nothing for a report that is not of the pen's way, or not well formed.
    std::optional<HidPenReading> Read(std::span<char> report);

private:
    PHIDP_PREPARSED_DATA Data_() { return reinterpret_cast<PHIDP_PREPARSED_DATA>(preparsed.data()); }
    void FindLayouts_();
    std::optional<HidPenReading> Read_(const HidPenLayout& layout, std::span<char> report);
    bool ReadValue_(const HidValue& value, std::span<char> report, std::optional<std::int32_t>& number);
    bool ReadSwitches_(const HidPenLayout& layout, std::span<char> report, PenReport& read);

    std::vector<std::byte> preparsed;
    std::vector<HidPenLayout> layouts;
    std::vector<USAGE> pressed; // its size is the most that a report can name
};

} // namespace lumora_pen
