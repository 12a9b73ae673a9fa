// Timers that are only noted, so that ticks come when a test sends them.
#pragma once

#include "support/hook/import_hook.h"

#include <windows.h>

#include <vector>

namespace zq::LM::test {

// `failures` ids are refused first.
class TimerStandIn {
public:
    explicit TimerStandIn(HMODULE library, unsigned failures = 0)
        : set(library,
              [this, failures](HWND window, UINT_PTR id, UINT period, TIMERPROC) {
                  started.push_back({window, id, period});
                  return started.size() > failures ? id : 0;
              }),
          kill(library, [this](HWND, UINT_PTR id) {
              killed.push_back(id);
              return TRUE;
          })
    {
    }

    struct Call {
        HWND window;
        UINT_PTR id;
        UINT period;
    };
    const std::vector<Call>& Started() const { return started; }
    const std::vector<UINT_PTR>& Killed() const { return killed; }

private:
    std::vector<Call> started;
    std::vector<UINT_PTR> killed;
    Hook<"SetTimer", decltype(SetTimer)> set;
    Hook<"KillTimer", decltype(KillTimer)> kill;
};

} // namespace zq::LM::test
