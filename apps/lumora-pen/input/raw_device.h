// What the system knows of a device of Raw Input.
#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lumora_pen {

// What the functions of Raw Input return instead of a count.
inline constexpr UINT RawInputFailed = static_cast<UINT>(-1);

// All that are plugged in.
std::vector<HANDLE> RawDevices();

// Nothing when it is no pen, or has gone.
std::optional<RID_DEVICE_INFO_HID> PenFacts(HANDLE device);

// The system's own, not one for people. Empty when it cannot be had, like the next.
std::wstring RawDeviceName(HANDLE device);

// What the HidP_ functions read the device's reports by.
std::vector<std::byte> PreparsedData(HANDLE device);

} // namespace lumora_pen
