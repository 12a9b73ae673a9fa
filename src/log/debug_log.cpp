// The debug log's state and its way out.
#include "log/debug_log.h"

#include "platform/debugger_output.h"

namespace zq::LM {

std::atomic<std::uint32_t> g_debugLevel{NONE};
char g_logBuffer[LogBufferSize];

namespace {

bool IsHeldBack(std::uint32_t level) { return level == OnlyAtAll && GetDebugLevel() != ALL; }

} // namespace

void WriteLog(std::uint32_t level, const wchar_t* text)
{
    if (!IsHeldBack(level)) {
        WriteToDebugger(text);
    }
}

void WriteLog(std::uint32_t level, const char* text)
{
    if (!IsHeldBack(level)) {
        WriteToDebugger(text);
    }
}

} // namespace zq::LM
