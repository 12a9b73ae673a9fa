// A debugger that keeps what it is told, for tests that link the portable code.
#include "support/recorded_log.h"

#include "platform/debugger_output.h"

#include <mutex>
#include <string_view>

namespace zq::LM {

namespace {

std::mutex g_mutex;
bool g_recording = false;
std::vector<test::LogLine> g_lines;

void Record(bool wide, std::string text)
{
    const std::lock_guard lock(g_mutex);
    if (g_recording) {
        g_lines.push_back({wide, std::move(text)});
    }
}

} // namespace

void WriteToDebugger(const wchar_t* text)
{
    std::string narrow;
    for (const wchar_t character : std::wstring_view(text)) {
        narrow += static_cast<char>(character);
    }
    Record(true, std::move(narrow));
}

void WriteToDebugger(const char* text) { Record(false, text); }

namespace test {

RecordedLog::RecordedLog()
{
    const std::lock_guard lock(g_mutex);
    g_lines.clear();
    g_recording = true;
}

RecordedLog::~RecordedLog()
{
    const std::lock_guard lock(g_mutex);
    g_recording = false;
}

std::vector<LogLine> RecordedLog::Lines() const
{
    const std::lock_guard lock(g_mutex);
    return g_lines;
}

std::vector<std::string> RecordedLog::Texts() const
{
    std::vector<std::string> texts;
    for (LogLine& line : Lines()) {
        texts.push_back(std::move(line.text));
    }
    return texts;
}

} // namespace test

} // namespace zq::LM
