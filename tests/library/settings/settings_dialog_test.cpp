// The settings dialog of the real library: opened by its command, driven by messages, read back on the
// screen.
#include "library/settings/settings_dialog_test.h"

#include <algorithm>

namespace zq::LM::test {

HWND SettingsDialogTest::Open()
{
    Choose(SettingsCommand);
    const std::vector<HWND> open = OpenDialogs();
    dialog = open.size() == 1 ? open.front() : nullptr;
    if (dialog == nullptr) {
        ADD_FAILURE() << open.size() << " dialogs are open";
    }
    UpdateWindow(dialog);
    SettleScreen();
    return dialog;
}

HWND SettingsDialogTest::OpenAndClose()
{
    Open();
    Close();
    return dialog;
}

void SettingsDialogTest::OpenWithColour(COLORREF colour)
{
    SetField(&LM_Params::inkColor, colour);
    Open();
}

std::vector<HWND> SettingsDialogTest::OpenDialogs()
{
    std::vector<HWND> dialogs = SettingsDialogs();
    std::erase_if(dialogs, [](HWND window) { return !IsWindowVisible(window); });
    return dialogs;
}

std::string SettingsDialogTest::Text(int id) const
{
    char text[600] = {};
    GetDlgItemTextA(dialog, id, text, sizeof(text));
    return text;
}

void SettingsDialogTest::MoveTrackbar(int trackbar, int position) const
{
    SendMessageW(Control(trackbar), TBM_SETPOS, TRUE, position);
    SendMessageW(dialog, WM_HSCROLL, MAKEWPARAM(TB_THUMBTRACK, position),
                 reinterpret_cast<LPARAM>(Control(trackbar)));
}

LM_Params SettingsDialogTest::Record() const
{
    InputNothing();
    return Params();
}

POINT SettingsDialogTest::OnScreen(int id, int x, int y) const
{
    POINT point = {x, y};
    ClientToScreen(Control(id), &point);
    return point;
}

SIZE SettingsDialogTest::Size(int id) const
{
    RECT client{};
    GetClientRect(Control(id), &client);
    return {client.right, client.bottom};
}

POINT SettingsDialogTest::FromMiddle(int id, int dx, int dy) const
{
    const SIZE size = Size(id);
    return OnScreen(id, size.cx / 2 + dx, size.cy / 2 + dy);
}

Picture SettingsDialogTest::Seen(int id) const
{
    SettleScreen();
    const SIZE size = Size(id);
    const POINT corner = OnScreen(id, 0, 0);
    return TakePicture({corner.x, corner.y, corner.x + size.cx, corner.y + size.cy});
}

bool SettingsDialogTest::SwatchShows(COLORREF colour) const
{
    const SIZE size = Size(SwatchArea);
    return Seen(SwatchArea).Count(colour) == static_cast<std::size_t>(size.cx * size.cy);
}

bool SettingsDialogTest::PumpUntil(const std::function<bool()>& condition)
{
    constexpr int MostWaits = 100;
    constexpr DWORD WaitMilliseconds = 20;
    for (int i = 0; i < MostWaits && !condition(); ++i) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, WaitMilliseconds, QS_ALLINPUT);
        PumpMessages();
    }
    return condition();
}

} // namespace zq::LM::test
