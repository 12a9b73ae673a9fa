// The version block of a loaded file.
#include "program/file_version.h"

#include <array>
#include <vector>

namespace lumora_pen {

std::string VersionOf(HMODULE module)
{
    std::array<wchar_t, 32'768> file{};
    GetModuleFileNameW(module, file.data(), static_cast<DWORD>(file.size()));
    std::vector<unsigned char> block(GetFileVersionInfoSizeW(file.data(), nullptr));
    VS_FIXEDFILEINFO* version = nullptr;
    UINT size = 0;
    if (block.empty() ||
        GetFileVersionInfoW(file.data(), 0, static_cast<DWORD>(block.size()), block.data()) == 0 ||
        VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&version), &size) == 0) {
        return {};
    }
    return std::to_string(HIWORD(version->dwFileVersionMS)) + '.' +
           std::to_string(LOWORD(version->dwFileVersionMS)) + '.' +
           std::to_string(HIWORD(version->dwFileVersionLS)) + '.' +
           std::to_string(LOWORD(version->dwFileVersionLS));
}

} // namespace lumora_pen
