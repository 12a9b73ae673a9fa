// What was told to the debugger, however it was caught.
#pragma once

#include <mutex>
#include <string>
#include <utility>
#include <vector>

namespace zq::LM::test {

struct LogLine {
    bool wide;        // by which of the two channel calls it came
    std::string text; // wide texts narrowed: all texts of the library are ASCII
    bool operator==(const LogLine&) const = default;
};

// From any thread.
class LogCatcher {
public:
    std::vector<LogLine> Lines() const
    {
        const std::lock_guard lock(mutex);
        return lines;
    }

    std::vector<std::string> Texts() const
    {
        std::vector<std::string> texts;
        for (LogLine& line : Lines()) {
            texts.push_back(std::move(line.text));
        }
        return texts;
    }

    void Clear()
    {
        const std::lock_guard lock(mutex);
        lines.clear();
    }

    void Add(LogLine line)
    {
        const std::lock_guard lock(mutex);
        lines.push_back(std::move(line));
    }

private:
    mutable std::mutex mutex;
    std::vector<LogLine> lines;
};

} // namespace zq::LM::test
