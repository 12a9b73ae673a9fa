// Stand-ins for what the library asks of the system: the clock, the debugger, the shell window and the timer.
#pragma once

#include "support/import_patch.h"
#include "support/recorded_log.h"

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

namespace zq::LM::test {

// A hand-driven timeGetTime. One at a time.
class ClockStandIn {
public:
    explicit ClockStandIn(HMODULE library, DWORD start = 100'000);

    void Set(DWORD milliseconds);
    void Advance(DWORD milliseconds);
    DWORD Now() const;

private:
    ImportPatch patch;
};

// Keeps the library's debug output, wide and narrow apart. One at a time.
class DebuggerStandIn {
public:
    explicit DebuggerStandIn(HMODULE library);

    const std::vector<LogLine>& Lines() const;
    std::vector<std::string> Texts() const;
    void Clear();

private:
    ImportPatch wide;
    ImportPatch narrow;
};

// A window of a chosen place that the library takes for the shell's desktop; never shown. One at a time.
class ShellStandIn {
public:
    ShellStandIn(HMODULE library, const RECT& place);
    ~ShellStandIn();

    void Move(const RECT& place);
    void Remove(); // from now on there is no shell window
    HWND Window() const { return window; }

private:
    ImportPatch patch;
    HWND window;
};

// Timers are only noted, so that ticks come when a test sends them. `failures` ids are refused first. One at
// a time.
class TimerStandIn {
public:
    explicit TimerStandIn(HMODULE library, unsigned failures = 0);

    struct Call {
        HWND window;
        UINT_PTR id;
        UINT period;
    };
    const std::vector<Call>& Started() const;
    const std::vector<UINT_PTR>& Killed() const;

private:
    ImportPatch set;
    ImportPatch kill;
};

// The Direct2D back-end finds no Direct2D: every instance makes one, which takes time. Direct2D for others is
// there. One at a time.
class NoDirect2DBackEnd {
public:
    explicit NoDirect2DBackEnd(HMODULE library);

private:
    ImportPatch patch;
};

// Systems differ in whether they can compose: no device here, so that every overlay starts alike, and fast. A
// composition stand-in put on top of it brings a device of its own.
class NoGraphicsDevice {
public:
    explicit NoGraphicsDevice(HMODULE library);

private:
    ImportPatch patch;
    NoDirect2DBackEnd noDirect2D;
};

} // namespace zq::LM::test
