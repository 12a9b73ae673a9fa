// The log line about a time difference that runs backwards.
#include "ink/time_warning.h"

#include "log/debug_log.h"

#include <cstdio>

namespace zq::LM {

void LogTimeWarning(const char* operation, long long timeSub)
{
    // Frames may meet one for every segment: format only what will be read.
    if (GetDebugLevel() < DETAILED) {
        return;
    }
    const int length = std::snprintf(g_logBuffer, LogBufferSize,
                                     "Warning (zq::LM::Drawing::%s) : time_sub = %lld\n", operation, timeSub);
    if (length >= 0) {
        LogA(DETAILED, g_logBuffer);
    }
}

} // namespace zq::LM
