// A debugger that keeps what it is told, for tests that link the portable code.
#pragma once

#include <string>
#include <vector>

namespace zq::LM::test {

struct LogLine {
    bool wide;        // by which of the two channel calls it came
    std::string text; // wide texts narrowed: all texts of the library are ASCII
    bool operator==(const LogLine&) const = default;
};

// Collects while it lives, from any thread; one at a time.
class RecordedLog {
public:
    RecordedLog();
    ~RecordedLog();
    RecordedLog(const RecordedLog&) = delete;
    RecordedLog& operator=(const RecordedLog&) = delete;

    std::vector<LogLine> Lines() const;
    std::vector<std::string> Texts() const;
};

} // namespace zq::LM::test
