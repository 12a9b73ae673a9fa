// Platform calls that must succeed for the next one to make sense.
#pragma once

#include "platform/win32/windows_header.h"

#include <stdexcept>

namespace zq::LM {

// Its text is fixed, as the log's are.
class CallFailed : public std::runtime_error {
public:
    CallFailed() : std::runtime_error("unknown") {}
};

inline void Require(HRESULT result)
{
    if (FAILED(result)) {
        throw CallFailed();
    }
}

} // namespace zq::LM
