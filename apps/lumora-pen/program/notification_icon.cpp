// Shell_NotifyIcon.
#include "program/notification_icon.h"
#include "text/wide_text.h"

#include <algorithm>

namespace lumora_pen {

namespace {

constexpr UINT IconNumber = 1;

template <std::size_t Size> void Put(wchar_t (&place)[Size], std::string_view utf8)
{
    const std::wstring text = lumora::text::ToWide(utf8);
    const std::size_t length = std::min(text.size(), Size - 1);
    std::copy_n(text.begin(), length, place);
    place[length] = L'\0';
}

} // namespace

NotificationIcon::NotificationIcon(HWND window, UINT message, HICON icon)
{
    data.cbSize = sizeof data;
    data.hWnd = window;
    data.uID = IconNumber;
    data.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
    data.uCallbackMessage = message;
    data.hIcon = icon;
    Put(data.szTip, "Lumora Pen");
}

NotificationIcon::~NotificationIcon() { Shell_NotifyIconW(NIM_DELETE, &data); }

bool NotificationIcon::Add()
{
    return Shell_NotifyIconW(NIM_ADD, &data) != 0 || Shell_NotifyIconW(NIM_MODIFY, &data) != 0;
}

void NotificationIcon::SetTip(std::string_view utf8)
{
    Put(data.szTip, utf8);
    Shell_NotifyIconW(NIM_MODIFY, &data);
}

void NotificationIcon::ShowBalloon(std::string_view title, std::string_view text)
{
    NOTIFYICONDATAW balloon = data;
    balloon.uFlags |= NIF_INFO;
    balloon.dwInfoFlags = NIIF_INFO;
    Put(balloon.szInfoTitle, title);
    Put(balloon.szInfo, text);
    Shell_NotifyIconW(NIM_MODIFY, &balloon);
}

} // namespace lumora_pen
