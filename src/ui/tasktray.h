// The icon in the shell's notification area, and the pop-up of its menu.
#pragma once

#include "platform/endable.h"
#include "platform/win32/windows_header.h"

#include <shellapi.h>

#include <memory>
#include <string>
#include <string_view>
#include <type_traits>

namespace sc::WinGui {

struct IconDeleter {
    void operator()(HICON icon) const { DestroyIcon(icon); }
};

using Icon = std::unique_ptr<std::remove_pointer_t<HICON>, IconDeleter>;

// Belongs to the thread of its window. Takes the icon away at its end, whether the window still lives or not.
class Tasktray final : public zq::LM::Endable {
public:
    Tasktray() = default;
    ~Tasktray() override;
    Tasktray(const Tasktray&) = delete;
    Tasktray& operator=(const Tasktray&) = delete;

    // The window hears of the mouse by this message, which is also the icon's identifier.
    void SetUp(HWND owner, HMODULE resources, UINT callbackMessage, UINT icon);
    void SetTip(std::wstring_view text) { tip = text; }

    // 0, or -1 when it is not set up, the shell refuses the icon, or this object is ended meanwhile. Again,
    // it puts a new icon in place of the old one.
    int Show();

    // Opens the menu at the cursor and returns when it is closed. The menu's owner may have ended this object
    // by then.
    void PopUp(HMENU submenu);

private:
    void OnEnd() override { Remove_(); }
    void Remove_();
    void CopyTip_();

    bool iconShown = false;
    HWND window = nullptr;
    HMODULE module = nullptr;
    NOTIFYICONDATAW data{};
    UINT iconId = 0;
    UINT message = 0;
    std::wstring tip = L"sc::WinGui::Tasktray";
    Icon loadedIcon;
};

} // namespace sc::WinGui
