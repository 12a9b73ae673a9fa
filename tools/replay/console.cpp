// Console output by the system's own calls.
#include "console.h"

#include "text/wide_text.h"

#include <windows.h>

namespace lumora::replay {

void PrintLine(Channel channel, std::string_view utf8)
{
    const HANDLE handle = GetStdHandle(channel == Channel::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
    const std::string line = std::string(utf8) + "\n";
    DWORD written = 0;
    DWORD consoleMode = 0;
    if (GetConsoleMode(handle, &consoleMode) != 0) {
        const std::wstring wide = text::ToWide(line);
        WriteConsoleW(handle, wide.data(), static_cast<DWORD>(wide.size()), &written, nullptr);
    } else {
        WriteFile(handle, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    }
}

} // namespace lumora::replay
