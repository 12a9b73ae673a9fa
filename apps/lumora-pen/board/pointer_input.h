// The Board's messages of pen, finger and mouse, and the strokes that become of them.
#pragma once

#include "input/input.h"
#include "input/one_writer.h"

#include <functional>
#include <optional>
#include <vector>

#include <windows.h>

namespace lumora_pen {

// All places of the mouse since the last message, oldest first; takes the one that the message tells.
using ReadMouse = std::function<std::vector<InputSample>(const InputSample& newest)>;

class PointerInput {
public:
    explicit PointerInput(TakeInput take);

    // Without it the mouse is where its messages say, which on a fast curve is not often enough.
    void UseMouseHistory(ReadMouse read);

    // The message's answer; nothing when it is the system's.
    std::optional<LRESULT> Take(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    void End(); // of the stroke in the making; the captured mouse goes with the window

private:
    std::optional<LRESULT> TakePointer_(UINT message, WPARAM wParam);
    void TakeRead_(UINT message, Source who, std::vector<InputSample> samples);
    std::optional<LRESULT> TakeMouse_(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void LiftMouse_(HWND window, const InputSample& last);

    OneWriter writer;
    ReadMouse readMouse;
};

} // namespace lumora_pen
