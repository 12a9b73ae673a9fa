// Hears the debugger's output of the whole process, by the events that it raises: also of a library that is
// only being loaded, when nothing of it can be replaced yet.
#pragma once

#include <windows.h>

namespace zq::LM::test {

// Counts from construction to destruction. One at a time.
class DebugEvents {
public:
    DebugEvents();
    ~DebugEvents();
    DebugEvents(const DebugEvents&) = delete;
    DebugEvents& operator=(const DebugEvents&) = delete;

    int Count() const;

private:
    void* handler;
};

} // namespace zq::LM::test
