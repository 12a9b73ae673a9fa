// The debugger that the library writes its log to.
#pragma once

#include "support/fakes/log_catcher.h"
#include "support/hook/import_hook.h"

namespace zq::LM::test {

class DebuggerStandIn : public LogCatcher {
public:
    explicit DebuggerStandIn(HMODULE library)
        : wide(library,
               [this](const wchar_t* text) {
                   Add({true, Narrow(text)});
               }),
          narrow(library, [this](const char* text) {
              Add({false, text});
          })
    {
    }

private:
    Hook<"OutputDebugStringW", decltype(OutputDebugStringW)> wide;
    Hook<"OutputDebugStringA", decltype(OutputDebugStringA)> narrow;
};

} // namespace zq::LM::test
