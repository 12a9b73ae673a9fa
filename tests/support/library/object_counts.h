// Counts what this process holds of the system's objects, exactly.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

namespace zq::LM::test {

std::size_t GdiObjects();    // device contexts, bitmaps, brushes, pens, fonts
std::size_t UserObjects();   // windows, menus, icons, cursors
std::size_t KernelHandles(); // threads, events, files

// This thread's top-level windows whose class name begins so, in no order.
std::vector<HWND> WindowsOfClass(const std::wstring& prefix);
std::vector<HWND> OverlayWindows();
std::vector<HWND> SettingsDialogs(); // the one that is open, and one that is closed and hidden

// How many classes the library has registered for its overlay windows: they have numbers from 0 on.
unsigned OverlayClasses(HMODULE library);

// The system has room for some 16,000 of them. Those of living windows stay.
void GiveBackOverlayClasses(HMODULE library);

// Those that changes of the back-end have left.
void DestroyLeftWindows(HWND living);

} // namespace zq::LM::test
