// Which part of the screen a pen's device stands for.
#pragma once

#include "input/pen_report.h"

#include <windows.h>

#include <string>

namespace lumora_pen {

struct PenMapping {
    PenPlace place;
    bool isMapped = false; // else the system has no answer, and the whole screen has to serve
    std::wstring product;  // what the system calls it before people; may be empty
};

// `device` and `name` are Raw Input's.
PenMapping MapPen(HANDLE device, const std::wstring& name);

} // namespace lumora_pen
