// Ctrl+C, Ctrl+Break and the closing of the console, as an event that the player waits for.
#pragma once

#include <windows.h>

namespace lumora::replay {

class StopSignal {
public:
    StopSignal();
    ~StopSignal();
    StopSignal(const StopSignal&) = delete;
    StopSignal& operator=(const StopSignal&) = delete;

    HANDLE Event() const;
    bool IsSet() const;
};

} // namespace lumora::replay
