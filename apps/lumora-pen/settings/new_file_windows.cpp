// A new file on Windows.
#include "settings/new_file.h"

#include <windows.h>

namespace lumora_pen {

namespace {

std::error_code LastError() { return {static_cast<int>(GetLastError()), std::system_category()}; }

} // namespace

std::error_code WriteNewFile(const std::filesystem::path& file, std::string_view text)
{
    const HANDLE opened =
        CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE) {
        return LastError();
    }
    DWORD written = 0;
    std::error_code error;
    // A file of the disk takes all or fails.
    if (WriteFile(opened, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) == 0 ||
        FlushFileBuffers(opened) == 0) {
        error = LastError();
    }
    if (CloseHandle(opened) == 0 && !error) {
        error = LastError();
    }
    return error;
}

} // namespace lumora_pen
