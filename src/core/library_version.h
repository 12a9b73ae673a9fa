// The library's version, read from its own version resource.
#pragma once

#include "platform/win32/windows_header.h"

#include <cstdint>

namespace zq::LM {

struct FileVersion {
    std::uint16_t major = 0;
    std::uint16_t minor = 0;
    std::uint16_t build = 0;
    std::uint16_t revision = 0;
};

// All zero when the module has no version resource or it cannot be read.
FileVersion ReadFileVersion(HMODULE module);

} // namespace zq::LM
