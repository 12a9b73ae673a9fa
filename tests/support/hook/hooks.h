// Hooks of one module that write to one log.
#pragma once

#include "support/hook/import_hook.h"

#include <map>
#include <memory>
#include <string>
#include <typeindex>
#include <vector>

namespace zq::LM::test {

// One at a time: names of handles are forgotten at its end.
class Hooks {
public:
    explicit Hooks(HMODULE module) : module(module) { GiveName(module, "module"); }
    ~Hooks()
    {
        byType.clear();
        ForgetNames();
    }
    Hooks(const Hooks&) = delete;
    Hooks& operator=(const Hooks&) = delete;

    // Record<"GetPixel">(GetPixel): the calls are written to the log. The hook is this set's.
    template <FixedText name, typename Result, typename... Arguments>
    Hook<name, Result(Arguments...)>& Record(Result(WINAPI*)(Arguments...))
    {
        using TheHook = Hook<name, Result(Arguments...)>;
        std::shared_ptr<void>& known = byType[typeid(TheHook)];
        if (known == nullptr) {
            known = std::make_shared<TheHook>(module, &log);
        }
        return *static_cast<TheHook*>(known.get());
    }

    // The same, and the test's own answer instead of the system's.
    template <FixedText name, typename Result, typename... Arguments>
    void Answer(Result(WINAPI* function)(Arguments...),
                std::type_identity_t<std::function<Result(Arguments...)>> answer)
    {
        Record<name>(function).Answer(std::move(answer));
    }

    // Puts the lines of the library's log among the calls, as "log: " and the text.
    void RecordLog()
    {
        wideLog.emplace(module, [this](const wchar_t* text) { log.AddLine("log: " + Narrow(text)); });
        narrowLog.emplace(module, [this](const char* text) { log.AddLine("log: " + std::string(text)); });
    }

    // What appears in calls under a name of the test's.
    void Name(const void* handle, const std::string& name) { GiveName(handle, name); }

    CallLog& Log() { return log; }
    std::vector<std::string> Take() { return log.Take(); }
    std::size_t Count(const std::string& function) const { return log.Count(function); }
    std::vector<std::string> Of(const std::string& function) const { return log.Of(function); }

private:
    HMODULE module;
    CallLog log;
    std::optional<Hook<"OutputDebugStringW", decltype(OutputDebugStringW)>> wideLog;
    std::optional<Hook<"OutputDebugStringA", decltype(OutputDebugStringA)>> narrowLog;
    std::map<std::type_index, std::shared_ptr<void>> byType;
};

} // namespace zq::LM::test
