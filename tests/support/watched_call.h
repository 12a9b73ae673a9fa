// Watches the library's calls of one system function, and refuses them when a test wants a failure.
#pragma once

#include "support/import_patch.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <tuple>
#include <type_traits>
#include <vector>

namespace zq::LM::test {

template <typename Function> class WatchedCall;

// Calls are noted and go on to the system, until they are refused. One at a time for each type of function.
template <typename Result, typename... Arguments> class WatchedCall<Result(Arguments...)> {
public:
    WatchedCall(HMODULE library, const char* dll, const char* function)
        : patch(library, dll, function, AsAddress(&WatchedCall::Replacement_))
    {
        if (g_watching != nullptr) {
            ADD_FAILURE() << "a function of the type of " << function << " is watched already";
        }
        g_watching = this;
    }
    ~WatchedCall() { g_watching = nullptr; }
    WatchedCall(const WatchedCall&) = delete;
    WatchedCall& operator=(const WatchedCall&) = delete;

    const std::vector<std::tuple<Arguments...>>& Calls() const { return calls; }
    std::size_t Count() const { return calls.size(); }
    void Forget() { calls.clear(); }

    // From now on every call gives this result and does not reach the system.
    template <typename Value> void Refuse(Value result) { refusal = result; }
    void Allow() { refusal.reset(); }

private:
    struct Nothing {};
    using Refusal = std::conditional_t<std::is_void_v<Result>, Nothing, Result>;

    static Result WINAPI Replacement_(Arguments... arguments)
    {
        g_watching->calls.emplace_back(arguments...);
        if constexpr (!std::is_void_v<Result>) {
            if (g_watching->refusal) {
                return *g_watching->refusal;
            }
        }
        return reinterpret_cast<Result(WINAPI*)(Arguments...)>(g_watching->patch.Original())(arguments...);
    }

    inline static WatchedCall* g_watching = nullptr;
    std::vector<std::tuple<Arguments...>> calls;
    std::optional<Refusal> refusal;
    ImportPatch patch;
};

} // namespace zq::LM::test
