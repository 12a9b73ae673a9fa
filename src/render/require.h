// Platform calls that must succeed for the next one to make sense.
#pragma once

#include "platform/win32/windows_header.h"

#include <stdexcept>

namespace zq::LM {

// Its text is fixed, as the log's are; the call and its result are for whoever debugs.
class CallFailed : public std::runtime_error {
public:
    CallFailed(const char* call, HRESULT result) : std::runtime_error("unknown"), call(call), result(result)
    {
    }

    const char* call;
    HRESULT result;
};

inline void Require(HRESULT result, const char* call)
{
    if (FAILED(result)) {
        throw CallFailed(call, result);
    }
}

} // namespace zq::LM
