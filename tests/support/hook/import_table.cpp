// The entries of a loaded module's import table.
#include "support/hook/import_table.h"

#include <cstdint>
#include <cstring>

namespace zq::LM::test {

namespace {

template <typename Type> Type* At(HMODULE module, std::uintptr_t offset)
{
    return reinterpret_cast<Type*>(reinterpret_cast<std::uintptr_t>(module) + offset);
}

const IMAGE_IMPORT_DESCRIPTOR* FirstImportedDll(HMODULE module)
{
    const auto* dos = At<const IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = At<const IMAGE_NT_HEADERS>(module, static_cast<std::uintptr_t>(dos->e_lfanew));
    const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
    return At<const IMAGE_IMPORT_DESCRIPTOR>(module, directory.VirtualAddress);
}

// Visual Studio's import library has some functions by number, Winsock's among them.
bool Names(HMODULE module, const IMAGE_THUNK_DATA& import, const char* dll, const char* function)
{
    if (IMAGE_SNAP_BY_ORDINAL(import.u1.Ordinal)) {
        HMODULE exporter = GetModuleHandleA(dll);
        const auto* number = reinterpret_cast<const char*>(IMAGE_ORDINAL(import.u1.Ordinal));
        return GetProcAddress(exporter, number) == GetProcAddress(exporter, function);
    }
    return std::strcmp(At<const IMAGE_IMPORT_BY_NAME>(module, import.u1.AddressOfData)->Name, function) == 0;
}

} // namespace

void** FindImport(HMODULE module, const char* function)
{
    for (const auto* imported = FirstImportedDll(module); imported->Name != 0; ++imported) {
        const auto* dll = At<const char>(module, imported->Name);
        const auto* name = At<const IMAGE_THUNK_DATA>(module, imported->OriginalFirstThunk);
        auto* entry = At<void*>(module, imported->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++entry) {
            if (Names(module, *name, dll, function)) {
                return entry;
            }
        }
    }
    return nullptr;
}

void ForEachImport(HMODULE module, const std::function<void(const char*, const char*, void**)>& visit)
{
    for (const auto* imported = FirstImportedDll(module); imported->Name != 0; ++imported) {
        const auto* dll = At<const char>(module, imported->Name);
        const auto* name = At<const IMAGE_THUNK_DATA>(module, imported->OriginalFirstThunk);
        auto* entry = At<void*>(module, imported->FirstThunk);
        for (; name->u1.AddressOfData != 0; ++name, ++entry) {
            if (!IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) {
                visit(dll, At<const IMAGE_IMPORT_BY_NAME>(module, name->u1.AddressOfData)->Name, entry);
            }
        }
    }
}

void WriteEntry(void** entry, void* address)
{
    DWORD protection = 0;
    VirtualProtect(entry, sizeof(*entry), PAGE_READWRITE, &protection);
    *entry = address;
    VirtualProtect(entry, sizeof(*entry), protection, &protection);
}

bool IsLoaded(void** entry)
{
    HMODULE module = nullptr;
    return GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                  GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                              reinterpret_cast<const wchar_t*>(entry), &module) != 0;
}

} // namespace zq::LM::test
