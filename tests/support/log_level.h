// A log level that holds while a test's scope does.
#pragma once

#include "log/debug_log.h"

#include <cstdint>

namespace zq::LM::test {

class LogLevel {
public:
    explicit LogLevel(std::uint32_t level) { SetDebugLevel(level); }
    ~LogLevel() { SetDebugLevel(NONE); }
    LogLevel(const LogLevel&) = delete;
    LogLevel& operator=(const LogLevel&) = delete;
};

} // namespace zq::LM::test
