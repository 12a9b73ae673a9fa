// Counts what this process holds of the system's objects.
#include "support/library/object_counts.h"

#include <cstdint>

namespace zq::LM::test {

namespace {

// Functions of the system's lowest library, which has no import library everywhere.
template <typename Function> Function* LowestLibrary(const char* name)
{
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), name)));
}

struct GdiTableEntry {
    std::uint64_t object;
    std::uint16_t processId;
    std::uint16_t padding;
    std::uint16_t unique;
    std::uint16_t type; // 0 for a free place
    std::uint64_t userPointer;
};
static_assert(sizeof(GdiTableEntry) == 24);

// The table that every process sees in its environment block.
std::size_t CountGdiTable()
{
    constexpr std::size_t TableInBlock = 0xF8;
    constexpr std::size_t Places = 65536;
    const auto* block = static_cast<const char*>(LowestLibrary<void*()>("RtlGetCurrentPeb")());
    const auto* table = *reinterpret_cast<const GdiTableEntry* const*>(block + TableInBlock);
    std::size_t count = 0;
    for (std::size_t i = 0; i < Places; ++i) {
        count += (table[i].type & 0xFF) != 0 ? 1 : 0;
    }
    return count;
}

// Each value is asked for, until so many in a row mean nothing that none can follow: the lowest free one is
// given out first. Wine's server ends when it is asked for the list of all while some other process has not a
// single one yet.
std::size_t CountHandlesByValue()
{
    constexpr std::uintptr_t Step = 4;
    constexpr std::size_t NoneFollow = 512;
    std::size_t count = 0;
    std::size_t freeInARow = 0;
    for (std::uintptr_t value = Step; freeInARow < NoneFollow; value += Step) {
        DWORD flags = 0;
        const bool open = GetHandleInformation(reinterpret_cast<HANDLE>(value), &flags) != 0;
        count += open ? 1 : 0;
        freeInARow = open ? 0 : freeInARow + 1;
    }
    return count;
}

BOOL CALLBACK CountWindow(HWND window, LPARAM parameter)
{
    ++*reinterpret_cast<std::size_t*>(parameter);
    if (GetParent(window) == nullptr) {
        EnumChildWindows(window, CountWindow, parameter);
    }
    return TRUE;
}

// This thread's, and those of the process that are for messages only.
std::size_t CountWindows()
{
    std::size_t count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&count));
    HWND window = nullptr;
    while ((window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr) {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        count += owner == GetCurrentProcessId() ? 1 : 0;
    }
    return count;
}

// Each place of Wine's table is asked for: a handle without its upper half names whatever is there.
std::size_t CountMenusAndIcons()
{
    constexpr std::uintptr_t FirstHandle = 0x20;
    constexpr std::uintptr_t EndOfHandles = 0x10000;
    const auto frameOf = reinterpret_cast<HCURSOR(WINAPI*)(HCURSOR, DWORD, DWORD, DWORD*, DWORD*)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetCursorFrameInfo")));
    std::size_t count = 0;
    for (std::uintptr_t handle = FirstHandle; handle < EndOfHandles; handle += 2) {
        DWORD rate = 0;
        DWORD steps = 0;
        count += IsMenu(reinterpret_cast<HMENU>(handle)) != 0 ? 1 : 0;
        count += frameOf(reinterpret_cast<HCURSOR>(handle), 0, 0, &rate, &steps) != nullptr ? 1 : 0;
    }
    return count;
}

struct WindowSearch {
    const std::wstring& prefix;
    std::vector<HWND> found;
};

BOOL CALLBACK OnWindow(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    wchar_t name[256] = {};
    GetClassNameW(window, name, 256);
    if (std::wstring(name).starts_with(search.prefix)) {
        search.found.push_back(window);
    }
    return TRUE;
}

std::wstring NameOfOverlayClass(unsigned number)
{
    wchar_t name[64];
    wsprintfW(name, L"Lumora Window Class_%05u", number);
    return name;
}

bool IsClass(HMODULE library, const std::wstring& name)
{
    WNDCLASSEXW description{};
    description.cbSize = sizeof(description);
    return GetClassInfoExW(library, name.c_str(), &description) != 0;
}

} // namespace

// Windows counts for us; Wine answers 0 there.
std::size_t GdiObjects()
{
    GdiFlush();
    const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS);
    return counted != 0 ? counted : CountGdiTable();
}

std::size_t UserObjects()
{
    const DWORD counted = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    return counted != 0 ? counted : CountWindows() + CountMenusAndIcons();
}

std::size_t KernelHandles()
{
    DWORD counted = 0;
    GetProcessHandleCount(GetCurrentProcess(), &counted);
    return counted != 0 ? counted : CountHandlesByValue();
}

std::vector<HWND> WindowsOfClass(const std::wstring& prefix)
{
    WindowSearch search{prefix, {}};
    EnumThreadWindows(GetCurrentThreadId(), OnWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::vector<HWND> OverlayWindows() { return WindowsOfClass(L"Lumora Window Class_"); }

std::vector<HWND> SettingsDialogs()
{
    std::vector<HWND> dialogs = WindowsOfClass(L"#32770");
    std::erase_if(dialogs, [](HWND window) {
        wchar_t title[64] = {};
        GetWindowTextW(window, title, 64);
        return std::wstring(title) != L"Orvane Settings";
    });
    return dialogs;
}

unsigned OverlayClasses(HMODULE library)
{
    unsigned number = 0;
    while (IsClass(library, NameOfOverlayClass(number))) {
        ++number;
    }
    return number;
}

void GiveBackOverlayClasses(HMODULE library)
{
    constexpr unsigned Numbers = 1 << 16;
    for (unsigned number = 0; number < Numbers; ++number) {
        if (const std::wstring name = NameOfOverlayClass(number); IsClass(library, name)) {
            UnregisterClassW(name.c_str(), library);
        }
    }
}

void DestroyLeftWindows(HWND living)
{
    for (HWND window : OverlayWindows()) {
        if (window != living) {
            DestroyWindow(window);
        }
    }
}

} // namespace zq::LM::test
