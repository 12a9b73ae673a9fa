// A clock that is moved by hand.
#pragma once

#include "support/hook/import_hook.h"

#include <timeapi.h>

#include <atomic>

namespace zq::LM::test {

class ClockStandIn {
public:
    explicit ClockStandIn(HMODULE library) : hook(library, [this] { return now.load(); }) {}

    void Set(DWORD milliseconds) { now = milliseconds; }
    void Advance(DWORD milliseconds) { now += milliseconds; }

private:
    std::atomic<DWORD> now = 100'000;
    Hook<"timeGetTime", decltype(timeGetTime)> hook;
};

} // namespace zq::LM::test
