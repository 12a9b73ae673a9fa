// A pen's device: its reports in, samples out.
#pragma once

#include "input/hid_pen.h"
#include "input/pen_mapping.h"
#include "input/raw_message.h"

#include <cstdint>
#include <string>
#include <vector>

namespace lumora_pen {

class PenDevice {
public:
    PenDevice(HANDLE device, const RID_DEVICE_INFO_HID& facts, Source number);

    // Where its reports lie on the screen, by what the system says now.
    void AskForPlace();

    // All reports of one message.
    void Take(const RawReports& reports, std::uint32_t time, std::vector<InputSample>& samples);

    // It is gone, or no longer listened to.
    void Leave(std::uint32_t time, std::vector<InputSample>& samples);

    Source Number() const { return number; }
    const std::wstring& Name() const { return name; } // for people
    bool IsReadable() const { return pen.IsReadable() && (hasWorked || !hasFailed); }
    bool IsMapped() const { return mapping.isMapped; }
    bool IsInRange() const { return strokes.IsInRange(); }

private:
    HANDLE device;
    Source number;
    std::wstring systemName;
    std::wstring name;
    HidPen pen;
    PenMapping mapping;
    PenReports strokes;
    bool hasWorked = false; // some report could be read
    bool hasFailed = false; // some report could not
};

} // namespace lumora_pen
