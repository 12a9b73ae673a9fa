// A debugger that keeps what it is told, for tests that link the portable code.
#include "support/recorded_log.h"

#include "platform/debugger_output.h"

#include <string_view>

namespace zq::LM {

namespace {

std::mutex g_mutex;
test::RecordedLog* g_log = nullptr;

void Record(test::LogLine line)
{
    const std::lock_guard lock(g_mutex);
    if (g_log != nullptr) {
        g_log->Add(std::move(line));
    }
}

void RecordInto(test::RecordedLog* log)
{
    const std::lock_guard lock(g_mutex);
    g_log = log;
}

} // namespace

void WriteToDebugger(const wchar_t* text)
{
    std::string narrow;
    for (const wchar_t character : std::wstring_view(text)) {
        narrow += static_cast<char>(character);
    }
    Record({true, std::move(narrow)});
}

void WriteToDebugger(const char* text) { Record({false, text}); }

namespace test {

RecordedLog::RecordedLog() { RecordInto(this); }
RecordedLog::~RecordedLog() { RecordInto(nullptr); }

} // namespace test

} // namespace zq::LM
