// One device of a pen.
#include "input/pen_device.h"

#include "input/raw_device.h"

#include <cwchar>
#include <iterator>

namespace lumora_pen {

namespace {

// As lists of hardware have it.
std::wstring NumbersOf(const RID_DEVICE_INFO_HID& facts)
{
    wchar_t text[32] = {};
    (void)std::swprintf(text, std::size(text), L"%04lX:%04lX", facts.dwVendorId, facts.dwProductId);
    return text;
}

} // namespace

PenDevice::PenDevice(HANDLE device, const RID_DEVICE_INFO_HID& facts, Source number)
    : device(device), number(number), systemName(RawDeviceName(device)), name(NumbersOf(facts)),
      pen(PreparsedData(device))
{
    AskForPlace();
}

void PenDevice::AskForPlace()
{
    mapping = MapPen(device, systemName);
    if (!mapping.product.empty()) {
        name = mapping.product;
    }
}

void PenDevice::Take(const RawReports& reports, std::uint32_t time, std::vector<InputSample>& samples)
{
    if (!pen.IsReadable() || reports.size == 0) {
        return;
    }
    for (std::size_t at = 0; at + reports.size <= reports.bytes.size(); at += reports.size) {
        const auto reading = pen.Read(reports.bytes.subspan(at, reports.size));
        if (!reading) {
            hasFailed = true;
            continue;
        }
        hasWorked = true;
        if (const auto sample = strokes.Take(reading->report, reading->ranges, mapping.place, time)) {
            samples.push_back(*sample);
        }
    }
}

void PenDevice::Leave(std::uint32_t time, std::vector<InputSample>& samples)
{
    if (const auto sample = strokes.Leave(time)) {
        samples.push_back(*sample);
    }
}

} // namespace lumora_pen
