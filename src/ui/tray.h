// The overlay's place in the shell's notification area: the icon, its menu and the menu's marks.
#pragma once

#include "platform/endable.h"
#include "platform/win32/windows_header.h"
#include "render/rendering_type.h"
#include "ui/tasktray.h"

#include <cstdint>
#include <memory>
#include <type_traits>

namespace zq::LM {

// By which the shell tells the overlay window of the mouse on the icon; also the icon's identifier.
inline constexpr UINT TrayMessage = WM_APP + 46;

// Whether the next overlay window gets a user interface of its own: tray icon, menu and hotkey. For the
// process; outlives instances. A later change leaves a window that is there alone.
inline bool g_userInterfaceSwitch = false;

struct MenuDeleter {
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};

using Menu = std::unique_ptr<std::remove_pointer_t<HMENU>, MenuDeleter>;

// Nothing is there until it is shown; every operation is then without effect. All of them but the marks can
// run host code, which may end this.
class Tray {
public:
    Tray();
    ~Tray() = default;
    Tray(const Tray&) = delete;
    Tray& operator=(const Tray&) = delete;

    // A shell that refuses the icon leaves the hotkey to open the menu.
    void ShowIcon(HWND window, HMODULE module);
    void MakeMenu(HMODULE module);

    // For a new shell, which knows nothing of the icon.
    void ShowIconAgain();

    void PopUp();

    // Marks the log level and the back-end in force. A level without an item is marked as none.
    void Mark(std::uint32_t logLevel, RenderingType type) const;

    void End();

private:
    Owned<sc::WinGui::Tasktray> icon; // null when there was no memory for it
    Menu menu;
};

} // namespace zq::LM
