// Leads an entry of a loaded module's import table elsewhere.
#pragma once

#include "support/hook/import_table.h"

#include <gtest/gtest.h>

namespace zq::LM::test {

// While it lives, calls of the module to `function` go to the replacement. Fails the test when there is no
// such import.
class ImportPatch {
public:
    ImportPatch(HMODULE module, const char*, const char* function, void* replacement)
        : entry(FindImport(module, function))
    {
        if (entry == nullptr) {
            ADD_FAILURE() << "the module does not import " << function;
            return;
        }
        original = *entry;
        WriteEntry(entry, replacement);
    }
    ~ImportPatch()
    {
        if (entry != nullptr) {
            WriteEntry(entry, original);
        }
    }
    ImportPatch(const ImportPatch&) = delete;
    ImportPatch& operator=(const ImportPatch&) = delete;

    // The function that was imported before.
    void* Original() const { return original; }

private:
    void** entry;
    void* original = nullptr;
};

} // namespace zq::LM::test
