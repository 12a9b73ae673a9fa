// The debug log: texts to the debugger's output, filtered by one process-wide level.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>

namespace zq::LM {

// The named levels. Any other number may be set and is compared as it is.
enum DebugLevel : std::uint32_t { NONE = 0, BASIC = 1, NORMAL = 2, DETAILED = 3, ALL = 255 };

// Lines of the getters' locks: so frequent that only ALL itself shows them, no other number.
inline constexpr std::uint32_t OnlyAtAll = 254;

// Any thread reads it, none waits for it: a stale value only changes which lines appear.
extern std::atomic<std::uint32_t> g_debugLevel;

// The level of the window's per-message lines.
inline constexpr std::uint32_t g_frameLogLevel = NORMAL;

// Shared by every line that needs formatting; only the overlay's thread formats.
inline constexpr std::size_t LogBufferSize = 4096;
extern char g_logBuffer[LogBufferSize];

inline std::uint32_t GetDebugLevel() { return g_debugLevel.load(std::memory_order_relaxed); }
inline void SetDebugLevel(std::uint32_t level) { g_debugLevel.store(level, std::memory_order_relaxed); }

// Writes a text that passed the comparison with the level in force.
void WriteLog(std::uint32_t level, const wchar_t* text);
void WriteLog(std::uint32_t level, const char* text);

// Inline, so that a filtered-out line costs its caller one comparison. The texts bring their own line ends.
inline void Log(std::uint32_t level, const wchar_t* text)
{
    if (level <= GetDebugLevel()) {
        WriteLog(level, text);
    }
}

inline void LogA(std::uint32_t level, const char* text)
{
    if (level <= GetDebugLevel()) {
        WriteLog(level, text);
    }
}

inline void LogAtNormal(const wchar_t* text) { Log(NORMAL, text); }

} // namespace zq::LM
