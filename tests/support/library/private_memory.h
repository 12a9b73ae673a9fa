// The memory that this process holds for itself alone.
#pragma once

#include <windows.h>

namespace zq::LM::test {

// Committed address space, page by page. What Wine's own libraries keep outside of Windows' address space is
// not among it.
inline double PrivateKilobytes()
{
    double bytes = 0;
    MEMORY_BASIC_INFORMATION region = {};
    for (const char* place = nullptr; VirtualQuery(place, &region, sizeof(region)) != 0;
         place = static_cast<const char*>(region.BaseAddress) + region.RegionSize) {
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE) {
            bytes += static_cast<double>(region.RegionSize);
        }
    }
    return bytes / 1024;
}

} // namespace zq::LM::test
