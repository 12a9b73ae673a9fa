// The version that a program or library says of itself.
#pragma once

#include <windows.h>

#include <string>

namespace lumora_pen {

// "1.2.3.4"; empty when the file says none.
std::string VersionOf(HMODULE module);

} // namespace lumora_pen
