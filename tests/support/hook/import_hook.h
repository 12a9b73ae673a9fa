// Stands between a module and a function that it imports: the system behind the unmodified library is what a
// test says it is.
#pragma once

#include "support/hook/call_log.h"
#include "support/hook/fixed_text.h"
#include "support/hook/import_table.h"
#include "support/hook/nth_call.h"
#include "support/hook/show.h"

#include <windows.h>

#include <atomic>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace zq::LM::test {

// Hook<"GetPixel", decltype(GetPixel)>
template <FixedText name, typename Function> class Hook;

// While it lives, the module's calls of the function come here: each is counted, written to the log if there
// is one, and passed on, unless a test answers it. A later hook of the same function passes on to an earlier
// one. Raises std::runtime_error when there is no such import.
template <FixedText name, typename Result, typename... Arguments> class Hook<name, Result(Arguments...)> {
public:
    using Function = std::function<Result(Arguments...)>;
    using Watcher = std::function<void(Arguments...)>;
    struct Nothing {};
    using Kept = std::conditional_t<std::is_void_v<Result>, Nothing, Result>;

    explicit Hook(HMODULE module, CallLog* log = nullptr)
        : entry(FindImport(module, name.text)), log(log), below(g_newest)
    {
        if (entry == nullptr || (below != nullptr && below->entry != entry)) {
            throw std::runtime_error(std::string("the module has no import to hook: ") + name.text);
        }
        original = below != nullptr ? below->original : reinterpret_cast<Pointer>(*entry);
        g_newest = this;
        WriteEntry(entry, AsAddress(&Hook::Entered_));
    }
    Hook(HMODULE module, Function function) : Hook(module) { Answer(std::move(function)); }
    ~Hook()
    {
        Hook** link = &g_newest;
        while (*link != this) {
            link = &(*link)->below;
        }
        *link = below;
        if (g_newest == nullptr && IsLoaded(entry)) {
            WriteEntry(entry, AsAddress(original));
        }
    }
    Hook(const Hook&) = delete;
    Hook& operator=(const Hook&) = delete;

    // From now on, instead of the system.
    void Answer(Function function) { answer = std::move(function); }

    // From the nth call on, counted from now, so many calls are not made and give this.
    void Fail(Kept result, unsigned nth = 1, unsigned times = NthCall::Always)
    {
        const std::lock_guard lock(mutex);
        failure = result;
        failing = NthCall(nth, times);
    }

    void PassOn()
    {
        const std::lock_guard lock(mutex);
        answer = nullptr;
        failing.reset();
    }

    // Code of the host's that runs inside the call.
    void Before(Watcher watcher) { before = std::move(watcher); }
    void After(Watcher watcher) { after = std::move(watcher); }

    // What the call would have done without this hook.
    Result Real(Arguments... arguments) const
    {
        if (below != nullptr) {
            return below->Enter_(arguments...);
        }
        return original(arguments...);
    }

    std::size_t Count() const { return count; }
    void Forget() { count = 0; }

private:
    using Pointer = Result(WINAPI*)(Arguments...);

    static Result WINAPI Entered_(Arguments... arguments) { return g_newest->Enter_(arguments...); }

    Result Enter_(Arguments... arguments)
    {
        ++count;
        std::vector<std::string> shown;
        if (log != nullptr) {
            shown = {Show(arguments)...};
            Write_(shown);
        }
        if (before) {
            before(arguments...);
        }
        if constexpr (std::is_void_v<Result>) {
            answer ? answer(arguments...) : Real(arguments...);
            RunAfter_(arguments...);
        } else {
            const Result result = Make_(arguments...);
            if (log != nullptr) {
                NoteResult_(result, shown);
                (NoteOutput_(arguments, shown), ...);
            }
            RunAfter_(arguments...);
            return result;
        }
    }

    Kept Make_(Arguments... arguments)
    {
        if (IsFailing_()) {
            return failure;
        }
        return answer ? answer(arguments...) : Real(arguments...);
    }

    bool IsFailing_()
    {
        const std::lock_guard lock(mutex);
        return failing && failing->Next();
    }

    void RunAfter_(Arguments... arguments)
    {
        if (after) {
            after(arguments...);
        }
    }

    void Write_(const std::vector<std::string>& shown) const
    {
        RecordedCall call;
        call.method = name.text;
        for (const std::string& argument : shown) {
            call.arguments += (call.arguments.empty() ? "" : ", ") + argument;
        }
        log->Add(std::move(call));
    }

    // Handles that the call gives, as its result or through a pointer, have names from then on.
    static void NoteResult_(Kept result, const std::vector<std::string>& shown)
    {
        if constexpr (std::is_pointer_v<Kept>) {
            NameResult(name.text, reinterpret_cast<const void*>(result), shown);
        }
    }
    template <typename Value> static void NoteOutput_(Value value, const std::vector<std::string>& shown)
    {
        if constexpr (std::is_pointer_v<std::remove_pointer_t<Value>>) {
            NameResult(name.text, value != nullptr ? *value : nullptr, shown);
        }
    }

    void** entry = nullptr;
    Pointer original = nullptr;
    CallLog* log = nullptr;
    Function answer;
    Watcher before;
    Watcher after;
    std::mutex mutex; // of the failure: calls come from any thread
    std::optional<NthCall> failing;
    Kept failure{};
    std::atomic<std::size_t> count = 0;

    Hook* below = nullptr; // the hook of the same function that was there before

    inline static Hook* g_newest = nullptr;
};

} // namespace zq::LM::test
