// The system's HidP_ functions, asked for a pen's values.
#include "input/hid_pen.h"

#include "input/hid_usages.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace lumora_pen {

namespace {

using ValueCaps = std::vector<HIDP_VALUE_CAPS>;
using ButtonCaps = std::vector<HIDP_BUTTON_CAPS>;

template <typename Caps> bool Names(const Caps& caps, USAGE page, USAGE usage)
{
    return caps.UsagePage == page &&
           (caps.IsRange ? caps.Range.UsageMin <= usage && usage <= caps.Range.UsageMax
                         : caps.NotRange.Usage == usage);
}

ValueCaps ReadValueCaps(PHIDP_PREPARSED_DATA data, USHORT count)
{
    ValueCaps caps(count);
    if (count == 0 || HidP_GetValueCaps(HidP_Input, caps.data(), &count, data) != HIDP_STATUS_SUCCESS) {
        return {};
    }
    caps.resize((std::min)(caps.size(), std::size_t{count}));
    return caps;
}

ButtonCaps ReadButtonCaps(PHIDP_PREPARSED_DATA data, USHORT count)
{
    ButtonCaps caps(count);
    if (count == 0 || HidP_GetButtonCaps(HidP_Input, caps.data(), &count, data) != HIDP_STATUS_SUCCESS) {
        return {};
    }
    caps.resize((std::min)(caps.size(), std::size_t{count}));
    return caps;
}

std::optional<HidValue> FindValue(const ValueCaps& all, UCHAR reportId, USAGE page, USAGE usage)
{
    constexpr USHORT MostBits = 32;
    for (const HIDP_VALUE_CAPS& caps : all) {
        if (!Names(caps, page, usage) || caps.ReportID != reportId) {
            continue;
        }
        const LogicalRange range = RangeOf(caps.LogicalMin, caps.LogicalMax, caps.BitSize);
        if (caps.IsAbsolute && caps.BitSize > 0 && caps.BitSize <= MostBits && IsUsable(range)) {
            return HidValue{page, usage, caps.LinkCollection, caps.BitSize, caps.HasNull != 0, range};
        }
    }
    return std::nullopt;
}

bool HasButton(const ButtonCaps& all, UCHAR reportId, USAGE usage)
{
    return std::any_of(all.begin(), all.end(), [&](const HIDP_BUTTON_CAPS& caps) {
        return Names(caps, usages::DigitizerPage, usage) && caps.ReportID == reportId;
    });
}

} // namespace

HidPen::HidPen(std::vector<std::byte> preparsedData) : preparsed(std::move(preparsedData))
{
    if (!preparsed.empty()) {
        FindLayouts_();
    }
}

std::optional<HidPenReading> HidPen::Read(std::span<char> report)
{
    if (report.empty()) {
        return std::nullopt;
    }
    // A device without numbers for its reports has a zero there, and one layout.
    const auto number = static_cast<UCHAR>(report.front());
    const auto layout = std::find_if(layouts.begin(), layouts.end(), [number](const HidPenLayout& known) {
        return known.reportId == number || known.reportId == 0;
    });
    return layout != layouts.end() ? Read_(*layout, report) : std::nullopt;
}

void HidPen::FindLayouts_()
{
    HIDP_CAPS caps = {};
    if (HidP_GetCaps(Data_(), &caps) != HIDP_STATUS_SUCCESS) {
        return;
    }
    const ValueCaps values = ReadValueCaps(Data_(), caps.NumberInputValueCaps);
    const ButtonCaps buttons = ReadButtonCaps(Data_(), caps.NumberInputButtonCaps);
    pressed.resize(HidP_MaxUsageListLength(HidP_Input, usages::DigitizerPage, Data_()));
    for (const HIDP_VALUE_CAPS& value : values) {
        const UCHAR id = value.ReportID;
        const bool isKnown = std::any_of(layouts.begin(), layouts.end(),
                                         [id](const HidPenLayout& known) { return known.reportId == id; });
        const auto x = FindValue(values, id, usages::DesktopPage, usages::X);
        const auto y = FindValue(values, id, usages::DesktopPage, usages::Y);
        if (isKnown || !x || !y || pressed.empty() || !HasButton(buttons, id, usages::TipSwitch)) {
            continue;
        }
        const auto pressure = FindValue(values, id, usages::DigitizerPage, usages::TipPressure);
        const PenRanges ranges = {x->range, y->range, pressure ? pressure->range : LogicalRange{}};
        layouts.push_back({id, *x, *y, pressure, ranges, HasButton(buttons, id, usages::InRange)});
    }
}

std::optional<HidPenReading> HidPen::Read_(const HidPenLayout& layout, std::span<char> report)
{
    HidPenReading reading = {{}, layout.ranges};
    PenReport& read = reading.report;
    if (!ReadValue_(layout.x, report, read.x) || !ReadValue_(layout.y, report, read.y) ||
        (layout.pressure && !ReadValue_(*layout.pressure, report, read.pressure)) ||
        !ReadSwitches_(layout, report, read)) {
        return std::nullopt;
    }
    return reading;
}

// False when the report is not well formed; a number that the device does not have is none.
bool HidPen::ReadValue_(const HidValue& value, std::span<char> report, std::optional<std::int32_t>& number)
{
    ULONG bits = 0;
    const NTSTATUS status = HidP_GetUsageValue(HidP_Input, value.page, value.collection, value.usage, &bits,
                                               Data_(), report.data(), static_cast<ULONG>(report.size()));
    if (status != HIDP_STATUS_SUCCESS) {
        return false;
    }
    const std::int32_t found = ValueOf(bits, value.bitSize, value.range);
    if (!value.hasNull || (value.range.least <= found && found <= value.range.most)) {
        number = found;
    }
    return true;
}

bool HidPen::ReadSwitches_(const HidPenLayout& layout, std::span<char> report, PenReport& read)
{
    auto count = static_cast<ULONG>(pressed.size());
    const NTSTATUS status =
        HidP_GetUsages(HidP_Input, usages::DigitizerPage, HIDP_LINK_COLLECTION_UNSPECIFIED, pressed.data(),
                       &count, Data_(), report.data(), static_cast<ULONG>(report.size()));
    if (status != HIDP_STATUS_SUCCESS) {
        return false;
    }
    const auto on = std::span(pressed).first((std::min)(pressed.size(), std::size_t{count}));
    const auto isOn = [on](USAGE usage) { return std::find(on.begin(), on.end(), usage) != on.end(); };
    read.touches = isOn(usages::TipSwitch);
    read.isInRange = !layout.hasInRange || isOn(usages::InRange);
    read.isInverted = isOn(usages::Invert);
    return true;
}

} // namespace lumora_pen
