// A mouse cursor that is where a test puts it.
#pragma once

#include "support/hook/import_hook.h"

#include <windows.h>

namespace zq::LM::test {

class CursorStandIn {
public:
    explicit CursorStandIn(HMODULE library, POINT start = {})
        : place(start), hook(library, [this](POINT* out) {
              *out = place;
              return TRUE;
          })
    {
    }

    void Set(POINT position) { place = position; }

private:
    POINT place;
    Hook<"GetCursorPos", decltype(GetCursorPos)> hook;
};

} // namespace zq::LM::test
