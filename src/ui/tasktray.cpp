// The icon in the shell's notification area, and the pop-up of its menu.
#include "ui/tasktray.h"

#include <utility>

namespace sc::WinGui {

// By its size the shell tells the forms of the record apart; this is the newest.
static_assert(sizeof(NOTIFYICONDATAW) == 976);

Tasktray::~Tasktray() { Remove_(); }

void Tasktray::SetUp(HWND owner, HMODULE resources, UINT callbackMessage, UINT icon)
{
    window = owner;
    module = resources;
    message = callbackMessage;
    iconId = icon;
}

int Tasktray::Show()
{
    if (window == nullptr || module == nullptr || message == 0) {
        return -1;
    }
    const zq::LM::Hold hold(*this);
    Remove_();
    if (!Lives()) {
        return -1;
    }
    // The icon's first picture, since no size is asked for. Not shared, so it is destroyed here in the end.
    loadedIcon.reset(static_cast<HICON>(LoadImageW(module, MAKEINTRESOURCEW(iconId), IMAGE_ICON, 0, 0, 0)));
    data = {};
    data.cbSize = sizeof(data);
    data.hWnd = window;
    data.uID = message;
    data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    data.uCallbackMessage = message;
    data.hIcon = loadedIcon.get();
    CopyTip_();
    iconShown = Shell_NotifyIconW(NIM_ADD, &data) != 0;
    if (!Lives()) {
        Remove_();
    }
    return iconShown ? 0 : -1;
}

void Tasktray::PopUp(HMENU submenu)
{
    const zq::LM::Hold hold(*this);
    POINT cursor{};
    // Neither result matters: a menu in the corner or behind another window is better than none.
    GetCursorPos(&cursor);
    SetForegroundWindow(window);
    if (Lives()) {
        // The choice arrives as a command. False means a menu that is open already, which is just as well.
        TrackPopupMenu(submenu, TPM_BOTTOMALIGN, cursor.x, cursor.y, 0, window, nullptr);
    }
}

void Tasktray::Remove_()
{
    if (std::exchange(iconShown, false)) {
        Shell_NotifyIconW(NIM_DELETE, &data); // the shell may have ended before; there is then no icon
    }
    loadedIcon.reset();
}

// A long tip is cut far below what would fit.
void Tasktray::CopyTip_()
{
    constexpr std::size_t EndOfWholeTips = 100;
    constexpr std::size_t LengthOfCutTips = 49;
    tip.copy(data.szTip, tip.size() < EndOfWholeTips ? tip.size() : LengthOfCutTips);
}

} // namespace sc::WinGui
