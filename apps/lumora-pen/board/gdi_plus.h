// GDI+. Its header needs COM's stream and, on some systems, unqualified min and max.
#pragma once

#include <windows.h>

#include <algorithm>

#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>
