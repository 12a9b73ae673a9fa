// The entries of a loaded module's import table.
#pragma once

#include <windows.h>

namespace zq::LM::test {

// Where the module keeps the address of an imported function; null when it does not import it.
void** FindImport(HMODULE module, const char* function);

// The table is read-only otherwise.
void WriteEntry(void** entry, void* address);

// False once the module of the table has been unloaded.
bool IsLoaded(void** entry);

// The address of a function as an entry has it.
template <typename Function> void* AsAddress(Function* function) { return reinterpret_cast<void*>(function); }

} // namespace zq::LM::test
