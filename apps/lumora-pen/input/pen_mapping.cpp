// Finds a device of Raw Input among the pointer devices.
#include "input/pen_mapping.h"

#include "input/raw_device.h"
#include "input/virtual_screen.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace lumora_pen {

namespace {

using PointerDevices = std::vector<POINTER_DEVICE_INFO>;

PointerDevices ReadPointerDevices()
{
    constexpr UINT32 MostDevices = 256;
    UINT32 count = 0;
    if (!GetPointerDevices(&count, nullptr) || count == 0 || count > MostDevices) {
        return {};
    }
    PointerDevices devices(count);
    if (!GetPointerDevices(&count, devices.data())) {
        return {};
    }
    devices.resize((std::min)(devices.size(), std::size_t{count}));
    return devices;
}

bool IsPen(const POINTER_DEVICE_INFO& info)
{
    return info.pointerDeviceType == POINTER_DEVICE_TYPE_INTEGRATED_PEN ||
           info.pointerDeviceType == POINTER_DEVICE_TYPE_EXTERNAL_PEN;
}

template <typename IsWanted> const POINTER_DEVICE_INFO* Find(const PointerDevices& devices, IsWanted isWanted)
{
    const auto found = std::find_if(devices.begin(), devices.end(), isWanted);
    return found != devices.end() ? &*found : nullptr;
}

// The system may hand out two handles for one device; then its name tells, or that there is no other pen.
const POINTER_DEVICE_INFO* FindDevice(const PointerDevices& devices, HANDLE device, const std::wstring& name)
{
    if (const auto* same = Find(devices, [&](const auto& info) { return info.device == device; })) {
        return same;
    }
    const auto hasName = [&](const POINTER_DEVICE_INFO& info) {
        return IsPen(info) && CompareStringOrdinal(RawDeviceName(info.device).c_str(), -1, name.c_str(), -1,
                                                   TRUE) == CSTR_EQUAL;
    };
    if (const auto* named = name.empty() ? nullptr : Find(devices, hasName)) {
        return named;
    }
    const bool isOnly = std::count_if(devices.begin(), devices.end(), IsPen) == 1;
    return isOnly ? Find(devices, IsPen) : nullptr;
}

Turn TurnOf(DWORD orientation)
{
    switch (orientation) {
    case DISPLAYCONFIG_ROTATION_ROTATE90:
        return Turn::Quarter;
    case DISPLAYCONFIG_ROTATION_ROTATE180:
        return Turn::Half;
    case DISPLAYCONFIG_ROTATION_ROTATE270:
        return Turn::ThreeQuarters;
    default:
        return Turn::None;
    }
}

std::wstring ProductOf(const POINTER_DEVICE_INFO& info)
{
    const auto* begin = std::begin(info.productString);
    return {begin, std::find(begin, std::end(info.productString), L'\0')};
}

} // namespace

PenMapping MapPen(HANDLE device, const std::wstring& name)
{
    const PointerDevices devices = ReadPointerDevices();
    const POINTER_DEVICE_INFO* info = FindDevice(devices, device, name);
    if (info == nullptr) {
        return {{VirtualScreen(), Turn::None}, false, {}};
    }
    RECT surface = {};
    RECT display = {};
    if (GetPointerDeviceRects(info->device, &surface, &display)) {
        const PixelRectangle place = {display.left, display.top, display.right, display.bottom};
        if (!place.IsEmpty()) {
            return {{place, TurnOf(info->displayOrientation)}, true, ProductOf(*info)};
        }
    }
    return {{VirtualScreen(), Turn::None}, false, ProductOf(*info)};
}

} // namespace lumora_pen
