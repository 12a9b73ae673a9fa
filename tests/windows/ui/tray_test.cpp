// The common set-up of the tray's tests.
#include "windows/ui/tray_test.h"

namespace zq::LM::test {

TrayTest::TrayTest()
{
    RecordHotkey(false);
    calls.Answer<"Shell_NotifyIconW">("SHELL32.dll", Shell_NotifyIconW,
                                      [this](DWORD message, NOTIFYICONDATAW* data) {
                                          if (message == NIM_ADD) {
                                              added = *data;
                                          }
                                          return shellAnswer;
                                      });
    calls.Answer<"LoadMenuW">("USER32.dll", LoadMenuW, [this](HINSTANCE module, LPCWSTR name) {
        menu = ::LoadMenuW(module, name);
        return menu;
    });
    calls.Record<"GetSubMenu">("USER32.dll", GetSubMenu);
    calls.Record<"DestroyMenu">("USER32.dll", DestroyMenu);
    calls.Record<"DestroyIcon">("USER32.dll", DestroyIcon);
    calls.Record<"CheckMenuRadioItem">("USER32.dll", CheckMenuRadioItem);
    calls.Answer<"GetCursorPos">("USER32.dll", GetCursorPos, [](POINT* position) {
        *position = {300, 200};
        return TRUE;
    });
    calls.Answer<"SetForegroundWindow">("USER32.dll", SetForegroundWindow, [](HWND) { return TRUE; });
    calls.Answer<"TrackPopupMenu">("USER32.dll", TrackPopupMenu,
                                   [this](HMENU, UINT, int, int, int, HWND, const RECT*) {
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
    calls.Answer<"LoadMenuW">("USER32.dll", LoadMenuW, [](HINSTANCE, LPCWSTR) { return HMENU{}; });
}

} // namespace zq::LM::test
