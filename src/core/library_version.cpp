// The library's version, read from its own version resource.
#include "core/library_version.h"

#include <algorithm>
#include <vector>

namespace zq::LM {

FileVersion ReadFileVersion(HMODULE module)
{
    constexpr DWORD MostCharacters = 10000;
    std::vector<wchar_t> path(MostCharacters);
    GetModuleFileNameW(module, path.data(), MostCharacters);
    const DWORD size = GetFileVersionInfoSizeW(path.data(), nullptr);
    if (size == 0) {
        return {};
    }
    // The reader is told of a fixed length, so the block is never shorter than that.
    std::vector<unsigned char> block(std::max(size, MostCharacters));
    VS_FIXEDFILEINFO* info = nullptr;
    UINT length = 0;
    if (GetFileVersionInfoW(path.data(), 0, MostCharacters, block.data()) == 0 ||
        VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&info), &length) == 0 ||
        info == nullptr) {
        return {};
    }
    return {HIWORD(info->dwFileVersionMS), LOWORD(info->dwFileVersionMS), HIWORD(info->dwFileVersionLS),
            LOWORD(info->dwFileVersionLS)};
}

} // namespace zq::LM
