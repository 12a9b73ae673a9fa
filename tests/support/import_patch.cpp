// Rewrites entries of a loaded module's import table.
#include "support/import_patch.h"

#include <gtest/gtest.h>

namespace zq::LM::test {

ImportPatch::ImportPatch(HMODULE module, const char* dll, const char* function, void* replacement)
    : entry(FindImportEntry(module, dll, function))
{
    if (entry == nullptr) {
        ADD_FAILURE() << "the module does not import " << function << " from " << dll;
        return;
    }
    original = *entry;
    WriteEntry(entry, replacement);
}

ImportPatch::~ImportPatch()
{
    if (entry != nullptr) {
        WriteEntry(entry, original);
    }
}

} // namespace zq::LM::test
