// The common set-up of the overlay window's tests.
#include "support/library/window_test.h"

#include <shellapi.h>

namespace zq::LM::test {

void WindowTest::RecordCreation()
{
    calls.Record<"LoadImageW">(LoadImageW);
    calls.Record<"Shell_NotifyIconW">(Shell_NotifyIconW);
    calls.Record<"LoadMenuW">(LoadMenuW);
    calls.Record<"CheckMenuRadioItem">(CheckMenuRadioItem);
    calls.Record<"RegisterClassExW">(RegisterClassExW);
    calls.Record<"CreateWindowExW">(CreateWindowExW);
    calls.Record<"GetDeviceCaps">(GetDeviceCaps);
    calls.Record<"SetTimer">(SetTimer);
    calls.Record<"KillTimer">(KillTimer);
    calls.Record<"GetWindowLongW">(GetWindowLongW);
    calls.Record<"SetWindowLongW">(SetWindowLongW);
    calls.Record<"SetLayeredWindowAttributes">(SetLayeredWindowAttributes);
    RecordPainting();
}

void WindowTest::RecordPainting()
{
    calls.Record<"BeginPaint">(BeginPaint);
    calls.Record<"EndPaint">(EndPaint);
    calls.Record<"GetDC">(GetDC);
    calls.Record<"ReleaseDC">(ReleaseDC);
    calls.Record<"SetWindowPos">(SetWindowPos);
    calls.Record<"SetBkColor">(SetBkColor);
    calls.Record<"CreateSolidBrush">(CreateSolidBrush);
    calls.Record<"PatBlt">(PatBlt);
    calls.Record<"BitBlt">(BitBlt);
    calls.Record<"CreateCompatibleDC">(CreateCompatibleDC);
    calls.Record<"CreateCompatibleBitmap">(CreateCompatibleBitmap);
    calls.Record<"DeleteDC">(DeleteDC);
    calls.Record<"DeleteObject">(DeleteObject);
}

void WindowTest::RecordHotkey(bool taken)
{
    constexpr ATOM Atom = 0xC123;
    calls.Answer<"GlobalAddAtomW">(GlobalAddAtomW, [](LPCWSTR) { return Atom; });
    calls.Answer<"GlobalDeleteAtom">(GlobalDeleteAtom, [](ATOM) { return ATOM{0}; });
    calls.Answer<"RegisterHotKey">(RegisterHotKey,
                                   [taken](HWND, int, UINT, UINT) { return taken ? FALSE : TRUE; });
    calls.Answer<"UnregisterHotKey">(UnregisterHotKey, [](HWND, int) { return TRUE; });
}

void WindowTest::RecordInvalidations() { calls.Record<"InvalidateRect">(InvalidateRect); }

} // namespace zq::LM::test
