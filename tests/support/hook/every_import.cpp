// Stands between a module and every function that it imports.
#include "support/hook/every_import.h"

#include "support/hook/import_table.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <stdexcept>

namespace zq::LM::test {

namespace {

// Machine code, byte by byte.
class Code {
public:
    explicit Code(unsigned char* place) : next(place) {}

    void Put(std::initializer_list<unsigned> bytes)
    {
        for (const unsigned byte : bytes) {
            *next++ = static_cast<unsigned char>(byte);
        }
    }
    void PutAddress(const void* address)
    {
        std::memcpy(next, &address, sizeof(address));
        next += sizeof(address);
    }

private:
    unsigned char* next;
};

constexpr std::size_t CommonSize = 128;
constexpr std::size_t SwitchSize = 32;
constexpr std::size_t MostImports = 1000;

} // namespace

EveryImport::EveryImport(HMODULE module)
    : code(static_cast<unsigned char*>(VirtualAlloc(nullptr, CommonSize + MostImports * SwitchSize,
                                                    MEM_COMMIT | MEM_RESERVE, PAGE_EXECUTE_READWRITE)))
{
    WriteCommonPart_();
    ForEachImport(module, [this](const char* dll, const char* function, void** entry) {
        if (const auto failure = FailureOf(dll, function)) {
            Add_(function, entry, *failure);
        }
    });
}

EveryImport::~EveryImport()
{
    for (const Import& import : imports) {
        if (IsLoaded(import.entry)) {
            WriteEntry(import.entry, import.original);
        }
    }
    VirtualFree(code, 0, MEM_RELEASE);
}

void EveryImport::Add_(const std::string& name, void** entry, const ImportFailure& failure)
{
    unsigned char* const place = code + CommonSize + imports.size() * SwitchSize;
    Import& import = imports.emplace_back();
    import.name = name;
    import.entry = entry;
    import.original = *entry;
    import.failure = failure;
    WriteSwitch_(place, import);
    WriteEntry(entry, place);
}

// r11 = the import; goes on to the common part. Neither register carries an argument.
void EveryImport::WriteSwitch_(unsigned char* place, Import& import) const
{
    Code writer(place);
    writer.Put({0x49, 0xBB});
    writer.PutAddress(&import);
    writer.Put({0x48, 0xB8});
    writer.PutAddress(code);
    writer.Put({0xFF, 0xE0});
}

// Keeps what may carry arguments, asks Decide_, and jumps there as if called by the module: the stack is as
// it was, so any function may follow, with any arguments, and raise.
void EveryImport::WriteCommonPart_() const
{
    Code writer(code);
    writer.Put({0x48, 0x81, 0xEC, 0x88, 0, 0, 0}); // sub rsp, 88h
    writer.Put({0x48, 0x89, 0x4C, 0x24, 0x20});    // mov [rsp+20h], rcx
    writer.Put({0x48, 0x89, 0x54, 0x24, 0x28});    // mov [rsp+28h], rdx
    writer.Put({0x4C, 0x89, 0x44, 0x24, 0x30});    // mov [rsp+30h], r8
    writer.Put({0x4C, 0x89, 0x4C, 0x24, 0x38});    // mov [rsp+38h], r9
    writer.Put({0x0F, 0x11, 0x44, 0x24, 0x40});    // movups [rsp+40h], xmm0
    writer.Put({0x0F, 0x11, 0x4C, 0x24, 0x50});    // movups [rsp+50h], xmm1
    writer.Put({0x0F, 0x11, 0x54, 0x24, 0x60});    // movups [rsp+60h], xmm2
    writer.Put({0x0F, 0x11, 0x5C, 0x24, 0x70});    // movups [rsp+70h], xmm3
    writer.Put({0x4C, 0x89, 0xD9});                // mov rcx, r11
    writer.Put({0x48, 0xB8});                      // mov rax, Decide_
    writer.PutAddress(AsAddress(&EveryImport::Decide_));
    writer.Put({0xFF, 0xD0});                   // call rax
    writer.Put({0x48, 0x8B, 0x4C, 0x24, 0x20}); // and all back
    writer.Put({0x48, 0x8B, 0x54, 0x24, 0x28});
    writer.Put({0x4C, 0x8B, 0x44, 0x24, 0x30});
    writer.Put({0x4C, 0x8B, 0x4C, 0x24, 0x38});
    writer.Put({0x0F, 0x10, 0x44, 0x24, 0x40});
    writer.Put({0x0F, 0x10, 0x4C, 0x24, 0x50});
    writer.Put({0x0F, 0x10, 0x54, 0x24, 0x60});
    writer.Put({0x0F, 0x10, 0x5C, 0x24, 0x70});
    writer.Put({0x48, 0x81, 0xC4, 0x88, 0, 0, 0}); // add rsp, 88h
    writer.Put({0xFF, 0xE0});                      // jmp rax
}

void* EveryImport::Decide_(Import* import)
{
    ++import->calls;
    if (!import->failing || !import->failing->Next()) {
        return import->original;
    }
    ++import->failures;
    t_failing = import;
    return import->failure.isPerformed ? AsAddress(&EveryImport::PerformAndFail_)
                                       : AsAddress(&EveryImport::Fail_);
}

std::intptr_t EveryImport::Fail_()
{
    const std::intptr_t answer = t_failing->failure.answer;
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return answer;
}

// None of them takes more than four arguments.
std::intptr_t EveryImport::PerformAndFail_(void* first, void* second, void* third, void* fourth)
{
    using Function = std::intptr_t(WINAPI*)(void*, void*, void*, void*);
    const Import& import = *t_failing;
    reinterpret_cast<Function>(import.original)(first, second, third, fourth);
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return import.failure.answer;
}

std::vector<std::string> EveryImport::Called() const
{
    std::vector<std::string> names;
    for (const Import& import : imports) {
        if (import.calls != 0) {
            names.push_back(import.name);
        }
    }
    return names;
}

void EveryImport::Forget()
{
    for (Import& import : imports) {
        import.calls = 0;
        import.failures = 0;
    }
}

void EveryImport::Fail(const std::string& function, unsigned nth, unsigned times)
{
    Find_(function).failing = NthCall(nth, times);
}

void EveryImport::FailNothing()
{
    for (Import& import : imports) {
        import.failing.reset();
    }
}

std::size_t EveryImport::Failures() const
{
    std::size_t failures = 0;
    for (const Import& import : imports) {
        failures += import.failures;
    }
    return failures;
}

EveryImport::Import& EveryImport::Find_(const std::string& function)
{
    const auto found = std::ranges::find(imports, function, &Import::name);
    if (found == imports.end()) {
        throw std::runtime_error("the module has no import that can fail by the name " + function);
    }
    return *found;
}

} // namespace zq::LM::test
