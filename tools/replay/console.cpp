// Console output by the system's own calls, and the conversions between UTF-8 and wide text.
#include "console.h"

#include <windows.h>

namespace lumora::replay {

void PrintLine(Channel channel, std::string_view text)
{
    const HANDLE handle = GetStdHandle(channel == Channel::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    const std::string line = std::string(text) + "\n";
    DWORD written = 0;
    DWORD consoleMode = 0;
    if (GetConsoleMode(handle, &consoleMode) != 0) {
        const std::wstring wide = ToWide(line);
        WriteConsoleW(handle, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
    } else {
        WriteFile(handle, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    }
}

std::string ToUtf8(std::wstring_view text)
{
    const int length = static_cast<int>(text.size());
    const int needed = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, utf8.data(), needed, nullptr, nullptr);
    return utf8;
}

std::wstring ToWide(std::string_view utf8)
{
    const int length = static_cast<int>(utf8.size());
    const int needed = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), needed);
    return wide;
}

std::vector<std::string> Utf8Arguments(int argc, wchar_t** argv)
{
    std::vector<std::string> arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.push_back(ToUtf8(argv[i]));
    }
    return arguments;
}

std::filesystem::path PathOf(std::string_view utf8) { return ToWide(utf8); }

} // namespace lumora::replay
