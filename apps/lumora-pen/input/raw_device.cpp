// Questions about devices of Raw Input.
#include "input/raw_device.h"

#include "input/hid_usages.h"

#include <algorithm>

namespace lumora_pen {

namespace {

constexpr UINT MostUnits = 1 << 20; // no device has so much to say
constexpr int Attempts = 3;         // what is asked for may grow between the questions

template <typename Unit> std::vector<Unit> Ask(HANDLE device, UINT what)
{
    UINT size = 0;
    if (GetRawInputDeviceInfoW(device, what, nullptr, &size) != 0) {
        return {};
    }
    for (int attempt = 0; attempt < Attempts && size > 0 && size <= MostUnits; ++attempt) {
        std::vector<Unit> answer(size);
        const UINT count = GetRawInputDeviceInfoW(device, what, answer.data(), &size);
        if (count != RawInputFailed && count <= answer.size()) {
            answer.resize(count);
            return answer;
        }
        if (size <= answer.size()) { // it has failed for another reason
            return {};
        }
    }
    return {};
}

} // namespace

std::vector<HANDLE> RawDevices()
{
    UINT count = 0;
    GetRawInputDeviceList(nullptr, &count, sizeof(RAWINPUTDEVICELIST));
    for (int attempt = 0; attempt < Attempts && count > 0 && count <= MostUnits; ++attempt) {
        std::vector<RAWINPUTDEVICELIST> list(count);
        const UINT got = GetRawInputDeviceList(list.data(), &count, sizeof(RAWINPUTDEVICELIST));
        if (got != RawInputFailed && got <= list.size()) {
            std::vector<HANDLE> devices;
            devices.reserve(got);
            for (UINT i = 0; i < got; ++i) {
                devices.push_back(list[i].hDevice);
            }
            return devices;
        }
        if (count <= list.size()) {
            return {};
        }
    }
    return {};
}

std::optional<RID_DEVICE_INFO_HID> PenFacts(HANDLE device)
{
    RID_DEVICE_INFO info = {};
    info.cbSize = sizeof(info);
    UINT size = sizeof(info);
    const UINT got = GetRawInputDeviceInfoW(device, RIDI_DEVICEINFO, &info, &size);
    if (got == RawInputFailed || got == 0 || info.dwType != RIM_TYPEHID ||
        info.hid.usUsagePage != usages::DigitizerPage || info.hid.usUsage != usages::PenDevice) {
        return std::nullopt;
    }
    return info.hid;
}

std::wstring RawDeviceName(HANDLE device)
{
    const std::vector<wchar_t> answer = Ask<wchar_t>(device, RIDI_DEVICENAME);
    std::wstring name(answer.begin(), answer.end());
    name.resize((std::min)(name.find(L'\0'), name.size()));
    return name;
}

std::vector<std::byte> PreparsedData(HANDLE device) { return Ask<std::byte>(device, RIDI_PREPARSEDDATA); }

} // namespace lumora_pen
