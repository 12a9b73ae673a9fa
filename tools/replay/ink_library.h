// The ink library, loaded at run time so that a missing file is a clear message instead of the system's.
#pragma once

#include "lumora/lumora.h"

#include <filesystem>
#include <stdexcept>

#include <windows.h>

namespace lumora::replay {

// What stops the program: one line for the user.
class ReplayError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class InkLibrary {
public:
    // Throws ReplayError when the file, one of its functions or the layout of its records is not as expected.
    explicit InkLibrary(const std::filesystem::path& file);

    HMODULE Module() const { return module.handle; }

    decltype(&LM_Create) create = nullptr;
    decltype(&LM_Destroy) destroy = nullptr;
    decltype(&LM_GetCopiedParams) getCopiedParams = nullptr;
    decltype(&LM_GetElmSize) getElmSize = nullptr;
    decltype(&LM_GetWindowHandle) getWindowHandle = nullptr;
    decltype(&LM_InputPenDataArray) inputPenDataArray = nullptr;
    decltype(&LM_SetDebugLevel) setDebugLevel = nullptr;
    decltype(&LM_SetParams) setParams = nullptr;

private:
    struct ModuleOwner {
        explicit ModuleOwner(HMODULE loaded) : handle(loaded) {}
        ~ModuleOwner() { FreeLibrary(handle); }
        ModuleOwner(const ModuleOwner&) = delete;
        ModuleOwner& operator=(const ModuleOwner&) = delete;
        HMODULE handle;
    };

    ModuleOwner module;
};

// The library that lies beside this program.
std::filesystem::path LibraryBesideProgram();

} // namespace lumora::replay
