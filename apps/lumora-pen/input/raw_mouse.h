// The mouse, which writes while a key is held.
#pragma once

#include "input/mouse_history.h"

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace lumora_pen {

class RawMouse {
public:
    explicit RawMouse(std::function<bool()> isHeld) : isHeld(std::move(isHeld)) {}

    // What is new on its way, or the end of its stroke.
    void Look(std::uint32_t now, std::vector<InputSample>& samples);

    // It writes no longer, whatever the key says, and has come without writing to where it is.
    void Rest(std::uint32_t now, std::vector<InputSample>& samples);

    // It begins to write here, whatever way it has gone since.
    void Begin(const InputSample& place);

private:
    std::function<bool()> isHeld;
    MouseHistory history;
    bool writes = false;
};

} // namespace lumora_pen
