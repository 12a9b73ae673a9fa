// Loading of the ink library and lookup of its functions.
#include "ink_library.h"
#include "console.h"

namespace lumora::replay {

namespace {

HMODULE Load(const std::filesystem::path& file)
{
    // With a full path the folder of the library comes first for what the library itself needs.
    const std::filesystem::path fullPath = std::filesystem::absolute(file);
    HMODULE module = LoadLibraryExW(fullPath.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (module == nullptr) {
        throw ReplayError("the library " + ToUtf8(fullPath.native()) + " cannot be loaded (system error " +
                          std::to_string(GetLastError()) + ")");
    }
    return module;
}

template <typename Function> void Find(HMODULE module, const char* name, Function& function)
{
    // By way of void*: a direct cast between function types would be warned about.
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    if (function == nullptr) {
        throw ReplayError("the library has no function " + std::string(name));
    }
}

} // namespace

InkLibrary::InkLibrary(const std::filesystem::path& file) : module(Load(file))
{
    Find(module.handle, "LM_Create", create);
    Find(module.handle, "LM_Destroy", destroy);
    Find(module.handle, "LM_GetCopiedParams", getCopiedParams);
    Find(module.handle, "LM_GetElmSize", getElmSize);
    Find(module.handle, "LM_GetWindowHandle", getWindowHandle);
    Find(module.handle, "LM_InputPenDataArray", inputPenDataArray);
    Find(module.handle, "LM_SetDebugLevel", setDebugLevel);
    Find(module.handle, "LM_SetParams", setParams);

    std::uint64_t paramsSize = 0;
    std::uint64_t penDataSize = 0;
    getElmSize(&paramsSize, &penDataSize);
    if (paramsSize != sizeof(LM_Params) || penDataSize != sizeof(LM_PenData)) {
        throw ReplayError("the library's records have other sizes: " + std::to_string(paramsSize) + " and " +
                          std::to_string(penDataSize) + " bytes");
    }
}

std::filesystem::path LibraryBesideProgram()
{
    constexpr std::size_t LongestPath = 32768;
    std::wstring program(LongestPath, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return std::filesystem::path(program).parent_path() / "LumoraDLL.dll";
}

} // namespace lumora::replay
