// A shell whose desktop has a chosen place.
#pragma once

#include "support/hook/import_hook.h"

#include <windows.h>

namespace zq::LM::test {

// Its window is never shown.
class ShellStandIn {
public:
    ShellStandIn(HMODULE library, const RECT& place)
        : window(CreateWindowExW(WS_EX_TOOLWINDOW, L"STATIC", L"Shell stand-in", WS_POPUP, place.left,
                                 place.top, place.right - place.left, place.bottom - place.top, nullptr,
                                 nullptr, nullptr, nullptr)),
          shown(window), hook(library, [this] { return shown; })
    {
    }
    ~ShellStandIn() { DestroyWindow(window); }
    ShellStandIn(const ShellStandIn&) = delete;
    ShellStandIn& operator=(const ShellStandIn&) = delete;

    void Move(const RECT& place)
    {
        SetWindowPos(window, nullptr, place.left, place.top, place.right - place.left,
                     place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
    }
    void Remove() { shown = nullptr; } // from now on there is no shell window
    HWND Window() const { return window; }

private:
    HWND window;
    HWND shown;
    Hook<"GetShellWindow", decltype(GetShellWindow)> hook;
};

} // namespace zq::LM::test
