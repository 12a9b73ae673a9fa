// What of this machine matters to ink.
#include "system_facts.h"
#include "text/wide_text.h"

#include "lumora/version.h"

#include <windows.h>

namespace lumora::replay {

namespace {

template <typename Function> Function FindInNtdll(const char* name)
{
    return reinterpret_cast<Function>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

// The system tells programs without a manifest of an older version; this one is true.
std::string WindowsVersion()
{
    OSVERSIONINFOW version = {};
    version.dwOSVersionInfoSize = sizeof(version);
    const auto getVersion = FindInNtdll<LONG(WINAPI*)(OSVERSIONINFOW*)>("RtlGetVersion");
    if (getVersion == nullptr || getVersion(&version) != 0) {
        return "unknown";
    }
    return std::to_string(version.dwMajorVersion) + "." + std::to_string(version.dwMinorVersion) + "." +
           std::to_string(version.dwBuildNumber);
}

std::string WineVersion()
{
    const auto getVersion = FindInNtdll<const char*(CDECL*)()>("wine_get_version");
    return getVersion != nullptr ? getVersion() : "none";
}

std::string Architecture()
{
    SYSTEM_INFO info = {};
    GetNativeSystemInfo(&info);
    switch (info.wProcessorArchitecture) {
    case PROCESSOR_ARCHITECTURE_AMD64:
        return "x64";
    case PROCESSOR_ARCHITECTURE_ARM64:
        return "ARM64";
    default:
        return "number " + std::to_string(info.wProcessorArchitecture);
    }
}

std::string GraphicsAdapter()
{
    DISPLAY_DEVICEW device = {};
    device.cb = sizeof(device);
    return EnumDisplayDevicesW(nullptr, 0, &device, 0) != 0 ? text::ToUtf8(device.DeviceString) : "unknown";
}

std::string Size(int widthMetric, int heightMetric)
{
    return std::to_string(GetSystemMetrics(widthMetric)) + " x " +
           std::to_string(GetSystemMetrics(heightMetric));
}

std::string YesNo(bool value) { return value ? "yes" : "no"; }

} // namespace

SystemFacts FactsOfThisSystem()
{
    constexpr int IntegratedOrExternalPen = 0x04 | 0x08;
    return {
        {"lumora", std::to_string(LUMORA_VERSION_MAJOR) + "." + std::to_string(LUMORA_VERSION_MINOR) + "." +
                       std::to_string(LUMORA_VERSION_BUILD) + "." + std::to_string(LUMORA_VERSION_REVISION)},
        {"Windows", WindowsVersion()},
        {"Wine", WineVersion()},
        {"processor", Architecture()},
        {"graphics", GraphicsAdapter()},
        {"first monitor", Size(SM_CXSCREEN, SM_CYSCREEN)},
        {"desktop", Size(SM_CXVIRTUALSCREEN, SM_CYVIRTUALSCREEN) + " at " +
                        std::to_string(GetSystemMetrics(SM_XVIRTUALSCREEN)) + ", " +
                        std::to_string(GetSystemMetrics(SM_YVIRTUALSCREEN))},
        {"monitors", std::to_string(GetSystemMetrics(SM_CMONITORS))},
        {"DPI of the system", std::to_string(GetDpiForSystem())},
        {"remote session", YesNo(GetSystemMetrics(SM_REMOTESESSION) != 0)},
        {"shell", YesNo(GetShellWindow() != nullptr)},
        {"pen", YesNo((GetSystemMetrics(SM_DIGITIZER) & IntegratedOrExternalPen) != 0)},
    };
}

} // namespace lumora::replay
