// The common set-up of the overlay window's tests.
#include "windows/window/window_test.h"

#include <shellapi.h>

namespace zq::LM::test {

void WindowTest::RecordCreation()
{
    calls.Record<"LoadImageW">("USER32.dll", LoadImageW);
    calls.Record<"Shell_NotifyIconW">("SHELL32.dll", Shell_NotifyIconW);
    calls.Record<"LoadMenuW">("USER32.dll", LoadMenuW);
    calls.Record<"CheckMenuRadioItem">("USER32.dll", CheckMenuRadioItem);
    calls.Record<"RegisterClassExW">("USER32.dll", RegisterClassExW);
    calls.Record<"CreateWindowExW">("USER32.dll", CreateWindowExW);
    calls.Record<"GetDeviceCaps">("GDI32.dll", GetDeviceCaps);
    calls.Record<"SetTimer">("USER32.dll", SetTimer);
    calls.Record<"KillTimer">("USER32.dll", KillTimer);
    calls.Record<"GetWindowLongW">("USER32.dll", GetWindowLongW);
    calls.Record<"SetWindowLongW">("USER32.dll", SetWindowLongW);
    calls.Record<"SetLayeredWindowAttributes">("USER32.dll", SetLayeredWindowAttributes);
    RecordPainting();
}

void WindowTest::RecordPainting()
{
    calls.Record<"BeginPaint">("USER32.dll", BeginPaint);
    calls.Record<"EndPaint">("USER32.dll", EndPaint);
    calls.Record<"GetDC">("USER32.dll", GetDC);
    calls.Record<"ReleaseDC">("USER32.dll", ReleaseDC);
    calls.Record<"SetWindowPos">("USER32.dll", SetWindowPos);
    calls.Record<"SetBkColor">("GDI32.dll", SetBkColor);
    calls.Record<"CreateSolidBrush">("GDI32.dll", CreateSolidBrush);
    calls.Record<"PatBlt">("GDI32.dll", PatBlt);
    calls.Record<"BitBlt">("GDI32.dll", BitBlt);
    calls.Record<"CreateCompatibleDC">("GDI32.dll", CreateCompatibleDC);
    calls.Record<"CreateCompatibleBitmap">("GDI32.dll", CreateCompatibleBitmap);
    calls.Record<"DeleteDC">("GDI32.dll", DeleteDC);
    calls.Record<"DeleteObject">("GDI32.dll", DeleteObject);
}

void WindowTest::RecordHotkey(bool taken)
{
    constexpr ATOM Atom = 0xC123;
    calls.Answer<"GlobalAddAtomW">("KERNEL32.dll", GlobalAddAtomW, [](LPCWSTR) { return Atom; });
    calls.Answer<"GlobalDeleteAtom">("KERNEL32.dll", GlobalDeleteAtom, [](ATOM) { return ATOM{0}; });
    calls.Answer<"RegisterHotKey">("USER32.dll", RegisterHotKey,
                                   [taken](HWND, int, UINT, UINT) { return taken ? FALSE : TRUE; });
    calls.Answer<"UnregisterHotKey">("USER32.dll", UnregisterHotKey, [](HWND, int) { return TRUE; });
}

void WindowTest::RecordInvalidations() { calls.Record<"InvalidateRect">("USER32.dll", InvalidateRect); }

} // namespace zq::LM::test
