// The one instance that the exports act on: its holder and its life.
#pragma once

#include "core/bindings.h"
#include "core/core.h"
#include "platform/endable.h"

#include <cstddef>
#include <memory>

namespace zq::LM {

// There is an instance while there is a holder, and for the time of a rebuild it may have no Core.
struct CoreHolder {
    Owned<Core> core;
};

// A plain pointer: a process that ends without destroying its instance leaves it to the system, since nothing
// may be released while the library is unloaded.
extern CoreHolder* g_coreHolder;

// Where the library's resources are.
extern HMODULE g_module;

// The current Core and its window, or null.
Core* CurrentCore();
HWND CurrentWindow();

// Each of these runs host code, which may call any of them again; what it calls last holds. Creating replaces
// an earlier instance. Its result is the current window: null when there is none.
HWND CreateInstance();
void DestroyInstance();

// Gives the samples to the Core, or drops them and rebuilds when the back-end has changed.
void InputPenData(const PenData* samples, std::size_t count);

} // namespace zq::LM
