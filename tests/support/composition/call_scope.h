// The recording of one call, from its entry to its return.
#pragma once

#include "support/composition/show_graphics.h"
#include "support/hook/call_log.h"

#include <windows.h>

#include <cstdint>
#include <optional>
#include <type_traits>

namespace zq::LM::test {

// Records when the watched module itself calls, on an object that it was given. Calls inside the call are not
// recorded.
class CallScope {
public:
    // `object` is null for a function, `caller` the address that the call returns to.
    CallScope(const void* caller, const void* object, const char* method);
    ~CallScope();
    CallScope(const CallScope&) = delete;
    CallScope& operator=(const CallScope&) = delete;

    bool IsRecorded() const { return recorded; }

    // What the call takes. Where it puts its result is left out.
    template <typename... Values> void Arguments(const Values&... values)
    {
        if (kept) {
            (AddArgument(values), ...);
            call.enteredAt = Now(); // the writing of the arguments is not the call's
        }
    }

    // The result chosen by the test; nothing when the call is to be made.
    std::optional<HRESULT> Chosen();
    HRESULT Result(HRESULT result);

    // What the call comes to: the chosen result, or what its work gives.
    template <typename Work> HRESULT Do(Work work)
    {
        const std::optional<HRESULT> chosen = Chosen();
        return Result(chosen ? *chosen : work());
    }

    // The same of a call that puts an object of this kind into `out`.
    template <typename Interface, typename Work> HRESULT Give(Interface** out, const char* kind, Work work)
    {
        *out = nullptr;
        return Do([&] {
            const HRESULT result = work();
            if (SUCCEEDED(result)) {
                Made(*out, kind);
            }
            return result;
        });
    }

    void Made(const void* object, const char* kind);
    ULONG Added(ULONG references);
    ULONG Released(ULONG references);

private:
    static std::int64_t Now();

    template <typename Value> void AddArgument(const Value& value)
    {
        if constexpr (!std::is_pointer_v<std::remove_pointer_t<Value>>) {
            if (!call.arguments.empty()) {
                call.arguments += ", ";
            }
            call.arguments += Show(value);
        }
    }

    bool recorded;
    bool kept; // of what is recorded: references are counted whether or not calls are kept
    const void* object;
    RecordedCall call;
};

} // namespace zq::LM::test
