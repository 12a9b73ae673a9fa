// The entries of a loaded module's import table.
#pragma once

#include <windows.h>

#include <functional>

namespace zq::LM::test {

// Where the module keeps the address of an imported function; null when it does not import it.
void** FindImport(HMODULE module, const char* function);

// The DLL's name, the function's, and the place of its address, for each function that is imported by name.
void ForEachImport(HMODULE module, const std::function<void(const char*, const char*, void**)>& visit);

// The table is read-only otherwise.
void WriteEntry(void** entry, void* address);

// False once the module of the table has been unloaded.
bool IsLoaded(void** entry);

// The address of a function as an entry has it.
template <typename Function> void* AsAddress(Function* function) { return reinterpret_cast<void*>(function); }

} // namespace zq::LM::test
