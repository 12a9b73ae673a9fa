// Hooks by the name of the library that they lie in, and one list that back-ends of a test write to as well.
#pragma once

#include "support/hook/hooks.h"

namespace zq::LM::test {

class SystemCalls : public Hooks {
public:
    explicit SystemCalls(HMODULE module) : Hooks(module) { g_log = &Log(); }
    ~SystemCalls() { g_log = nullptr; }

    template <FixedText name, typename Result, typename... Arguments>
    void Record(const char*, Result(WINAPI* function)(Arguments...))
    {
        Hooks::Record<name>(function);
    }

    template <FixedText name, typename Result, typename... Arguments>
    void Answer(const char*, Result(WINAPI* function)(Arguments...),
                std::type_identity_t<std::function<Result(Arguments...)>> answer)
    {
        Hooks::Answer<name>(function, std::move(answer));
    }

    inline static CallLog* g_log = nullptr;
};

inline void AddLine(std::string line)
{
    if (SystemCalls::g_log != nullptr) {
        SystemCalls::g_log->AddLine(std::move(line));
    }
}

} // namespace zq::LM::test
