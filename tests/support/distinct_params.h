// Parameter records that show every change.
#pragma once

#include "ink/params.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace zq::LM::test {

// Every byte has a value of its own, so that one that changes is seen.
inline Params Distinct()
{
    std::uint8_t bytes[sizeof(Params)];
    for (std::size_t i = 0; i < sizeof(bytes); ++i) {
        bytes[i] = static_cast<std::uint8_t>(0xA0 + i);
    }
    Params params;
    std::memcpy(&params, bytes, sizeof(params));
    return params;
}

inline bool Same(const Params& left, const Params& right)
{
    return std::memcmp(&left, &right, sizeof(left)) == 0;
}

} // namespace zq::LM::test
