// lumora-demo-desktop: a desktop and an ordinary window, to see the overlay on where no desktop is shown.
#include "desktop_window.h"
#include "note_window.h"

#include <cwchar>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <shellapi.h>

namespace {

constexpr UINT DefaultSeconds = 600;
constexpr UINT MaxSeconds = 86'400;
constexpr wchar_t Usage[] = L"Usage: lumora-demo-desktop [--seconds N], N from 1 to 86400 (default 600)\n";
constexpr int ExitFailed = 1;
constexpr int ExitWrongInput = 2;

struct ArgumentsDeleter {
    void operator()(wchar_t** arguments) const { LocalFree(arguments); }
};

using Arguments = std::unique_ptr<wchar_t*, ArgumentsDeleter>;

// What follows --seconds; nothing where that is not what the command line says.
std::optional<UINT> ReadSeconds(const wchar_t* name, const wchar_t* value)
{
    wchar_t* end = nullptr;
    const unsigned long seconds = std::wcstoul(value, &end, 10);
    const bool valid = std::wcscmp(name, L"--seconds") == 0 && *value >= L'0' && *value <= L'9' &&
                       *end == L'\0' && seconds >= 1 && seconds <= MaxSeconds;
    return valid ? std::optional<UINT>(static_cast<UINT>(seconds)) : std::nullopt;
}

bool IsHelp(const wchar_t* argument)
{
    return std::wcscmp(argument, L"--help") == 0 || std::wcscmp(argument, L"-h") == 0;
}

// To the stream that the caller has given, and into a box where there is none: a program with windows has no
// console.
void TellUsage(DWORD stream)
{
    std::string text;
    for (const wchar_t character : std::wstring_view(Usage)) {
        text += static_cast<char>(character); // all of them ASCII
    }
    DWORD written = 0;
    if (WriteFile(GetStdHandle(stream), text.data(), static_cast<DWORD>(text.size()), &written, nullptr) ==
        0) {
        MessageBoxW(nullptr, Usage, L"lumora-demo-desktop", MB_OK | MB_ICONINFORMATION);
    }
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
    int count = 0;
    const Arguments arguments{CommandLineToArgvW(GetCommandLineW(), &count)};
    if (count == 2 && IsHelp(arguments.get()[1])) {
        TellUsage(STD_OUTPUT_HANDLE);
        return 0;
    }
    std::optional<UINT> seconds = DefaultSeconds;
    if (count > 1) {
        seconds = count == 3 ? ReadSeconds(arguments.get()[1], arguments.get()[2]) : std::nullopt;
    }
    if (!seconds) {
        TellUsage(STD_ERROR_HANDLE);
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
