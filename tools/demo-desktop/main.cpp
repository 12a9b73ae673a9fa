// lumora-demo-desktop: a desktop and an ordinary window, to see the overlay on where no desktop is shown.
#include "desktop_window.h"
#include "note_window.h"

#include <cwchar>
#include <memory>
#include <optional>

#include <shellapi.h>

namespace {

constexpr UINT DefaultSeconds = 600;
constexpr UINT MaxSeconds = 86'400;
constexpr int ExitFailed = 1;
constexpr int ExitWrongInput = 2;

struct ArgumentsDeleter {
    void operator()(wchar_t** arguments) const { LocalFree(arguments); }
};

// The whole command line is "--seconds N" or nothing.
std::optional<UINT> ReadSeconds()
{
    int count = 0;
    const std::unique_ptr<wchar_t*, ArgumentsDeleter> owner{CommandLineToArgvW(GetCommandLineW(), &count)};
    if (owner == nullptr || count < 2) {
        return DefaultSeconds;
    }
    wchar_t** arguments = owner.get();
    if (count != 3 || std::wcscmp(arguments[1], L"--seconds") != 0) {
        return std::nullopt;
    }
    wchar_t* end = nullptr;
    const unsigned long seconds = std::wcstoul(arguments[2], &end, 10);
    const bool valid = *arguments[2] != L'-' && *end == L'\0' && seconds >= 1 && seconds <= MaxSeconds;
    return valid ? std::optional<UINT>(static_cast<UINT>(seconds)) : std::nullopt;
}

void PumpMessages()
{
    MSG message = {};
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

// Wine 10 names its bare root window the shell's, and shows nothing on it.
bool IsDesktopShown()
{
    HWND shell = GetShellWindow();
    return shell != nullptr && shell != GetDesktopWindow();
}

void CALLBACK EndOfTime(HWND, UINT, UINT_PTR, DWORD) { PostQuitMessage(0); }

} // namespace

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE, wchar_t*, int)
{
    const std::optional<UINT> seconds = ReadSeconds();
    if (!seconds) {
        MessageBoxW(nullptr, L"Usage: lumora-demo-desktop [--seconds N], N from 1 to 86400 (default 600)",
                    L"lumora-demo-desktop", MB_OK | MB_ICONINFORMATION);
        return ExitWrongInput;
    }
    SetProcessDPIAware();
    if (!IsDesktopShown() && lumora::demo::CreateDesktopWindow(instance) == nullptr) {
        return ExitFailed;
    }
    if (lumora::demo::CreateNoteWindow(instance) == nullptr) {
        return ExitFailed;
    }
    SetTimer(nullptr, 0, *seconds * 1000, EndOfTime);
    PumpMessages();
    return 0;
}
