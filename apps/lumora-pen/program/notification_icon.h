// The icon in the notification area, and the balloons by which the program speaks.
#pragma once

#include <windows.h>

#include <shellapi.h>

#include <string_view>

namespace lumora_pen {

class NotificationIcon {
public:
    // `message` comes to `window` with what the mouse does.
    NotificationIcon(HWND window, UINT message, HICON icon);
    ~NotificationIcon();
    NotificationIcon(const NotificationIcon&) = delete;
    NotificationIcon& operator=(const NotificationIcon&) = delete;

    // Also after the shell has started again. False where there is no notification area: the keys work all
    // the same.
    bool Add();

    void SetTip(std::string_view utf8);
    // Texts that are too long for the system are cut.
    void ShowBalloon(std::string_view title, std::string_view text);

private:
    NOTIFYICONDATAW data = {};
};

} // namespace lumora_pen
