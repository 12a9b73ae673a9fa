// The one instance that the exports act on: its holder and its life.
#pragma once

#include "core/core.h"

#include <cstddef>
#include <memory>

namespace zq::LM {

// Owns the current Core, which a change of the back-end replaces while the holder stays.
struct CoreHolder {
    std::unique_ptr<Core> core;
};

// Exists from creation to destruction. A plain pointer: a process that ends without destroying its instance
// leaves it to the system, since nothing may be released while the library is unloaded.
extern CoreHolder* g_coreHolder;

// The library's own module, whatever the host's is.
extern HMODULE g_module;

// The current Core, or null.
Core* CurrentCore();

// Replaces an earlier instance. Null when the window could not be made.
HWND CreateInstance();
void DestroyInstance();

// Gives the samples to the Core, or drops them and rebuilds when the back-end has changed.
void InputPenData(const PenData* samples, std::size_t count);

} // namespace zq::LM
