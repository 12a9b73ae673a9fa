// What one Core hands to the next when a change of the back-end rebuilds the instance.
#pragma once

#include "ink/params.h"
#include "platform/win32/windows_header.h"

namespace zq::LM {

struct Heritage {
    HMODULE module = nullptr;   // where the library's resources are
    unsigned creationValue = 0; // only handed on
    Params params = DefaultParams;
};

} // namespace zq::LM
