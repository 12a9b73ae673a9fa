// The unmodified library as a host loads it.
#pragma once

#include "lumora/lumora.h"

#include <windows.h>

#include <string>

namespace zq::LM::test {

// Loads LumoraDLL.dll from beside the test program; unloads it at the end. Leaves destroying the instance to
// the test.
class Library {
public:
    Library();
    ~Library();
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    HMODULE Module() const { return module; }

    decltype(&LM_Create) Create;
    decltype(&LM_Destroy) Destroy;
    decltype(&LM_GetCopiedParams) GetCopiedParams;
    decltype(&LM_GetElmSize) GetElmSize;
    decltype(&LM_GetWindowHandle) GetWindowHandle;
    decltype(&LM_InputPenDataArray) InputPenDataArray;
    decltype(&LM_SetData_from_App) SetData_from_App;
    decltype(&LM_SetDebugLevel) SetDebugLevel;
    decltype(&LM_SetParams) SetParams;

private:
    HMODULE module;
};

// The full path of LumoraDLL.dll beside the test program.
const wchar_t* LibraryPath();

// The log's line about a version, and about the version that the headers name.
std::string VersionLine(int major, int minor, int build, int revision);
std::string VersionLine();

} // namespace zq::LM::test
