// GDI+'s flat interface. Its header needs COM's stream and, on some SDKs, unqualified min and max.
#pragma once

#include "platform/win32/windows_header.h"

#include <algorithm>

#include <objidl.h>

namespace Gdiplus {
using std::max;
using std::min;
} // namespace Gdiplus

#include <gdiplus.h>
