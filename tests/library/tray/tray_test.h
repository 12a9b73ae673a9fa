// The common set-up of the tray's tests: shell, hotkey and pop-up are answered here, nothing reaches the
// system.
#pragma once

#include "support/library/window_test.h"

#include <shellapi.h>

#include <cstdint>
#include <functional>

namespace zq::LM::test {

class TrayTest : public WindowTest {
protected:
    TrayTest();

    static constexpr std::uint32_t Normal = 2; // a level at which messages are written

    // An overlay with GDI and a user interface, which owes no paint; its calls are dropped. "window 1" in
    // calls.
    void CreateWithTray(std::uint32_t level = 1);

    // To that window, without asking the library for it, which would write a line.
    LRESULT SendMouse(UINT event) const
    {
        return SendMessageW(window, TrayMessage, TrayMessage, static_cast<LPARAM>(event));
    }
    LRESULT Command(WPARAM command) const { return SendMessageW(window, WM_COMMAND, command, 0); }

    // The commands of the menu that carry a mark.
    std::vector<UINT> Marked() const;

    // The library has no menu resource.
    void RemoveMenu();

    HWND window = nullptr;
    BOOL shellAnswer = TRUE;
    NOTIFYICONDATAW added{};
    HMENU menu = nullptr;                  // the last one loaded
    std::function<void()> whileMenuIsOpen; // runs inside the pop-up
};

} // namespace zq::LM::test
