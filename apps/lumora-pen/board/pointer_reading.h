// What the system tells of a pen or a finger when one of its messages has come.
#pragma once

#include "input/input.h"

#include <optional>
#include <vector>

#include <windows.h>

namespace lumora_pen {

struct PointerReading {
    std::vector<InputSample> samples; // oldest first; none when the system tells nothing
    bool isCancelled = false;
};

// Nothing for what is neither pen nor finger.
std::optional<PointerReading> ReadPointer(UINT32 pointer);

} // namespace lumora_pen
