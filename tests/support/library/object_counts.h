// Counts what this process holds of the system's objects, exactly.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

namespace zq::LM::test {

std::size_t GdiObjects();    // device contexts, bitmaps, brushes, pens, fonts
std::size_t KernelHandles(); // threads, events, files

// This thread's top-level windows whose class name begins so, in no order.
std::vector<HWND> WindowsOfClass(const std::wstring& prefix);
std::vector<HWND> OverlayWindows();

// Those that changes of the back-end have left.
void DestroyLeftWindows(HWND living);

} // namespace zq::LM::test
