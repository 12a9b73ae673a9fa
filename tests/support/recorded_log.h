// A debugger that keeps what it is told, for tests that link the portable code.
#pragma once

#include "support/fakes/log_catcher.h"

namespace zq::LM::test {

// Collects while it lives; one at a time.
class RecordedLog : public LogCatcher {
public:
    RecordedLog();
    ~RecordedLog();
    RecordedLog(const RecordedLog&) = delete;
    RecordedLog& operator=(const RecordedLog&) = delete;
};

} // namespace zq::LM::test
