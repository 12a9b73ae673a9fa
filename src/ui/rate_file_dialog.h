// The dialog that asks for a file for the frame rates.
#pragma once

#include "platform/win32/windows_header.h"

namespace zq::LM {

// Returns when the dialog is closed. Nothing is written: frame rates have no file format yet, so the chosen
// name is dropped. The process's current directory stays as it was.
void AskForRateFile(HWND owner);

} // namespace zq::LM
