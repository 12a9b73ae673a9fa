// The system's header, without the macro that would rename our DrawText.
#pragma once

#include <windows.h>

#undef DrawText
