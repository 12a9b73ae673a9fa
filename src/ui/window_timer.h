// The timer that ages ink.
#pragma once

#include "platform/win32/windows_header.h"

namespace zq::LM {

class WindowTimer {
public:
    WindowTimer() = default;
    ~WindowTimer() { Stop(); }
    WindowTimer(const WindowTimer&) = delete;
    WindowTimer& operator=(const WindowTimer&) = delete;

    // Takes the first id that the system accepts. With none, there are no ticks: ink then never ages out by
    // itself.
    void Start(HWND newOwner, UINT periodMilliseconds);
    void Stop();

    // A destroyed window takes its timers along.
    void ForgetWindow() { owner = nullptr; }

private:
    HWND owner = nullptr;
    UINT_PTR id = 0; // 0 = none
};

} // namespace zq::LM
