// Rewrites entries of a loaded module's import table, so that a test can stand in for the system behind the
// unmodified library: its clock, its debugger, its shell window, or a call that fails.
#pragma once

#include "support/import_entry.h"

#include <windows.h>

namespace zq::LM::test {

// While it lives, calls of the module to `function` go to the replacement. Fails the test when there is no
// such import.
class ImportPatch {
public:
    ImportPatch(HMODULE module, const char* dll, const char* function, void* replacement);
    ~ImportPatch();
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    // The function that was imported before.
    void* Original() const { return original; }

private:
    void** entry;
    void* original = nullptr;
};

} // namespace zq::LM::test
