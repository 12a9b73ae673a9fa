// Shows the icon's menu.
#pragma once

#include "program/menu_model.h"

#include <windows.h>

namespace lumora_pen {

// The id of what was chosen, or 0. Runs a loop of the system's meanwhile: the overlay paints, host code runs.
unsigned ShowMenu(HWND owner, const std::vector<MenuEntry>& entries);

} // namespace lumora_pen
