// Keys as a person writes them: "Ctrl+Alt+B", "off", and the key that is held for writing with the mouse.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumora_pen {

// The numbers that RegisterHotKey takes.
inline constexpr unsigned AltModifier = 1;
inline constexpr unsigned ControlModifier = 2;
inline constexpr unsigned ShiftModifier = 4;
inline constexpr unsigned WindowsModifier = 8;

struct Hotkey {
    unsigned modifiers = 0;
    unsigned key = 0; // the system's virtual key; 0: switched off
};

bool operator==(const Hotkey& left, const Hotkey& right);

// Capital and small letters alike, blanks around a "+" allowed: letters, digits, F1 to F24, Plus, Minus,
// Escape, Delete, Backspace, Insert, Home, End, PageUp, PageDown, Up, Down, Left, Right, Space, Tab, Pause,
// Enter; "off" is none. Nothing when the text is no key.
std::optional<Hotkey> ParseHotkey(std::string_view text);

// In one spelling, which ParseHotkey reads back.
std::string TextOf(const Hotkey& hotkey);

// Held down for writing with the mouse: modifiers, and a mouse button if there is one.
struct HoldKey {
    unsigned modifiers = 0;
    unsigned button = 0; // the system's virtual key of a mouse button; 0: none
};

bool operator==(const HoldKey& left, const HoldKey& right);

// "Ctrl+Shift", "Ctrl+Shift+RightButton", "XButton1"; LeftButton, RightButton, MiddleButton, XButton1 and
// XButton2 are buttons. Nothing alone would write all the time, so at least one is needed.
std::optional<HoldKey> ParseHoldKey(std::string_view text);
std::string TextOf(const HoldKey& hold);

// Exactly these modifiers, so that AltGr, which is Ctrl and Alt to the system, does not write with Ctrl
// alone.
bool IsHeld(const HoldKey& hold, unsigned modifiersDown, bool isButtonDown);

} // namespace lumora_pen
