// The unmodified library as a host loads it.
#include "support/library/library.h"

#include <stdexcept>

namespace zq::LM::test {

namespace {

std::wstring FindLibrary()
{
    std::wstring path(MAX_PATH, L'\0');
    path.resize(GetModuleFileNameW(nullptr, path.data(), MAX_PATH));
    return path.substr(0, path.find_last_of(L'\\') + 1) + L"LumoraDLL.dll";
}

template <typename Function> void Bind(HMODULE module, const char* name, Function& function)
{
    function = reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
    if (function == nullptr) {
        throw std::runtime_error(std::string("the library does not export ") + name);
    }
}

} // namespace

const wchar_t* LibraryPath()
{
    static const std::wstring path = FindLibrary();
    return path.c_str();
}

std::string VersionLine(int major, int minor, int build, int revision)
{
    return "LumoraDLL.dll (" + std::to_string(major) + ", " + std::to_string(minor) + ", " +
           std::to_string(build) + ", " + std::to_string(revision) + ")";
}

std::string VersionLine()
{
    return VersionLine(LUMORA_VERSION_MAJOR, LUMORA_VERSION_MINOR, LUMORA_VERSION_BUILD,
                       LUMORA_VERSION_REVISION);
}

Library::Library() : module(LoadLibraryW(LibraryPath()))
{
    if (module == nullptr) {
        throw std::runtime_error("LumoraDLL.dll could not be loaded");
    }
    Bind(module, "LM_Create", Create);
    Bind(module, "LM_Destroy", Destroy);
    Bind(module, "LM_GetCopiedParams", GetCopiedParams);
    Bind(module, "LM_GetElmSize", GetElmSize);
    Bind(module, "LM_GetWindowHandle", GetWindowHandle);
    Bind(module, "LM_InputPenDataArray", InputPenDataArray);
    Bind(module, "LM_SetData_from_App", SetData_from_App);
    Bind(module, "LM_SetDebugLevel", SetDebugLevel);
    Bind(module, "LM_SetParams", SetParams);
}

Library::~Library() { FreeLibrary(module); }

} // namespace zq::LM::test
