// The common set-up of the tray's tests.
#include "library/tray/tray_test.h"

namespace zq::LM::test {

TrayTest::TrayTest()
{
    RecordHotkey(false);
    calls.Answer<"Shell_NotifyIconW">(Shell_NotifyIconW, [this](DWORD message, NOTIFYICONDATAW* data) {
        if (message == NIM_ADD) {
            added = *data;
        }
        return shellAnswer;
    });
    calls.Answer<"LoadMenuW">(LoadMenuW, [this](HINSTANCE module, LPCWSTR name) {
        menu = ::LoadMenuW(module, name);
        return menu;
    });
    calls.Record<"GetSubMenu">(GetSubMenu);
    calls.Record<"DestroyMenu">(DestroyMenu);
    calls.Record<"DestroyIcon">(DestroyIcon);
    calls.Record<"CheckMenuRadioItem">(CheckMenuRadioItem);
    calls.Answer<"GetCursorPos">(GetCursorPos, [](POINT* position) {
        *position = {300, 200};
        return TRUE;
    });
    calls.Answer<"SetForegroundWindow">(SetForegroundWindow, [](HWND) { return TRUE; });
    calls.Answer<"TrackPopupMenu">(TrackPopupMenu, [this](HMENU, UINT, int, int, int, HWND, const RECT*) {
        if (whileMenuIsOpen) {
            whileMenuIsOpen();
        }
        return TRUE;
    });
}

void TrayTest::CreateWithTray(std::uint32_t level)
{
    SelectGDI();
    library.SetDebugLevel(level);
    window = library.Create();
    UpdateWindow(window);
    debugger.Clear();
    calls.Take();
    calls.Name(window, "window 1");
}

std::vector<UINT> TrayTest::Marked() const
{
    std::vector<UINT> marked;
    for (const UINT command :
         {40001U, 40002U, 40010U, 40011U, 40012U, 40013U, 40014U, 40020U, 40021U, 40022U}) {
        if ((GetMenuState(menu, command, MF_BYCOMMAND) & MF_CHECKED) != 0) {
            marked.push_back(command);
        }
    }
    return marked;
}

void TrayTest::RemoveMenu()
{
    calls.Answer<"LoadMenuW">(LoadMenuW, [](HINSTANCE, LPCWSTR) { return HMENU{}; });
}

} // namespace zq::LM::test
