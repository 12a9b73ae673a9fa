// The tray's menu and its radio marks.
#pragma once

#include "platform/win32/windows_header.h"
#include "render/rendering_type.h"

#include <cstdint>
#include <memory>
#include <type_traits>

namespace zq::LM {

struct MenuDeleter {
    void operator()(HMENU menu) const { DestroyMenu(menu); }
};

using Menu = std::unique_ptr<std::remove_pointer_t<HMENU>, MenuDeleter>;

// Empty until it is loaded, and when there is no such resource; every operation is then without effect.
class TrayMenu {
public:
    void Load(HMODULE module);
    void Destroy() { menu.reset(); }

    HMENU PopUp() const; // what opens; null without a menu

    // Marks the log level and the back-end in force. A level without an item is marked as none.
    void Mark(std::uint32_t logLevel, RenderingType type) const;

private:
    Menu menu;
};

} // namespace zq::LM
