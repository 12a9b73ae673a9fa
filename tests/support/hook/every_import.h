// Stands between a module and every function that it imports, known or not: counts the calls and makes chosen
// ones fail. For x64 alone.
#pragma once

#include "support/hook/import_failure.h"
#include "support/hook/nth_call.h"

#include <windows.h>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <vector>

namespace zq::LM::test {

// While it lives. Hooks of the same functions that are there before work on below; none may be made
// meanwhile.
class EveryImport {
public:
    explicit EveryImport(HMODULE module);
    ~EveryImport();
    EveryImport(const EveryImport&) = delete;
    EveryImport& operator=(const EveryImport&) = delete;

    // Functions that can fail and were called since the last Forget, in the table's order.
    std::vector<std::string> Called() const;
    void Forget();

    // From the nth call on, counted from now, so many fail. For any number of functions at a time.
    void Fail(const std::string& function, unsigned nth, unsigned times = NthCall::Always);
    void FailNothing();

    std::size_t Failures() const; // since the last Forget

private:
    struct Import {
        std::string name;
        void** entry;
        void* original;
        ImportFailure failure;
        std::atomic<std::size_t> calls = 0;
        std::atomic<std::size_t> failures = 0;
        std::optional<NthCall> failing;
    };

    // Where the call goes on: to the function, or to what fails in its place.
    static void* Decide_(Import* import);
    static std::intptr_t Fail_();
    static std::intptr_t PerformAndFail_(void* first, void* second, void* third, void* fourth);

    void Add_(const std::string& name, void** entry, const ImportFailure& failure);
    Import& Find_(const std::string& function);
    void WriteSwitch_(unsigned char* code, Import& import) const;
    void WriteCommonPart_() const;

    unsigned char* code;
    std::deque<Import> imports;

    inline static thread_local Import* t_failing = nullptr;
};

} // namespace zq::LM::test
