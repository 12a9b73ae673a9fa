// Functions that take the place of methods and of imported functions: record the call, then make it.
#pragma once

#include "support/composition/call_scope.h"
#include "support/composition/caller.h"
#include "support/composition/context_targets.h"
#include "support/composition/recorded_interfaces.h"
#include "support/hook/fixed_text.h"
#include "support/hook/method_slot.h"

#include <type_traits>

namespace zq::LM::test {

// Objects come out by their own type or, as unknown ones, by the identifier that went in.
inline const GUID* IdAmong() { return nullptr; }
template <typename First, typename... Rest> const GUID* IdAmong(const First& first, const Rest&... rest)
{
    if constexpr (std::is_same_v<First, GUID>) {
        return &first;
    } else {
        return IdAmong(rest...);
    }
}

template <typename Value> void NoteOutput(CallScope&, const GUID*, const Value&) {}
template <typename Interface> void NoteOutput(CallScope& scope, const GUID* id, Interface** out)
{
    if (out == nullptr || *out == nullptr) {
        return;
    }
    if constexpr (std::is_void_v<Interface> || std::is_same_v<Interface, IUnknown>) {
        scope.Made(*out, WatchAs(*id, *out));
    } else {
        scope.Made(*out, Watch(*out));
    }
}

template <typename Value> void ClearOutput(const Value&) {}
template <typename Interface> void ClearOutput(Interface** out)
{
    if (out != nullptr) {
        *out = nullptr;
    }
}

// Makes the call, unless the test has chosen its result.
template <typename Result, typename Original, typename... Arguments>
Result Make(CallScope& scope, Original original, Arguments... arguments)
{
    if constexpr (std::is_same_v<Result, HRESULT>) {
        if (const auto chosen = scope.Chosen()) {
            (ClearOutput(arguments), ...);
            return scope.Result(*chosen);
        }
        const HRESULT result = original(arguments...);
        if (SUCCEEDED(result)) {
            const GUID* id = IdAmong(arguments...);
            (NoteOutput(scope, id, arguments), ...);
        }
        return scope.Result(result);
    } else {
        return original(arguments...);
    }
}

// What a method is to a device context that has no target.
enum class WithoutTarget { Works, IsLeftOut };

template <FixedText Name, auto Method, WithoutTarget Missing = WithoutTarget::Works> struct MethodHook;

template <FixedText Name, typename Interface, typename Result, typename... Arguments,
          Result (Interface::*Method)(Arguments...), WithoutTarget Missing>
struct MethodHook<Name, Method, Missing> {
    static Result STDMETHODCALLTYPE Call(Interface* self, Arguments... arguments)
    {
        CallScope scope(LUMORA_CALLER, self, Name.text);
        if (!scope.IsRecorded()) {
            return MethodSlot<Method>::Real(self, arguments...);
        }
        scope.Arguments(arguments...);
        if constexpr (Missing == WithoutTarget::IsLeftOut) {
            if (LacksTarget(self)) {
                return;
            }
        }
        return Make<Result>(
            scope, [self](const Arguments&... taken) { return MethodSlot<Method>::Real(self, taken...); },
            arguments...);
    }

    static void Patch(void* object) { MethodSlot<Method>::Hook(object, Call); }
};

} // namespace zq::LM::test
