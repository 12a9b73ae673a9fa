// What a person has chosen, and the file's text for it.
#pragma once

#include "settings/hotkey.h"

#include "lumora/params.hpp"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lumora_pen {

enum class BackEndName { Composition, Direct2D, GDI };

inline constexpr std::size_t ColourCount = 6;
inline constexpr int LeastWidth = 1;
inline constexpr int MostWidth = 100;
inline constexpr int LeastLifeMs = 100; // below, the library may leave a last stroke on the screen
inline constexpr int MostLifeMs = 60'000;

// What a key does. Each has a name in the settings file.
enum class KeyCommand {
    Board,    // in and out of Board
    Wipe,     // takes all ink away
    EndBoard, // while Board is on
    WipeBoard,
    Wider, // these while the hold key is down, together with it, or while Board is on
    Narrower,
    Colour1,
    Colour2,
    Colour3,
    Colour4,
    Colour5,
    Colour6,
};
inline constexpr std::size_t KeyCommandCount = 12;

struct KeyDefault {
    KeyCommand command;
    std::string_view name; // in the file, and for a person: "board", "end-board", "colour-1"
    Hotkey key;
};
const std::array<KeyDefault, KeyCommandCount>& KeyDefaults();

struct Settings {
    std::array<lumora::Colour, ColourCount> palette{
        {{224, 32, 32}, {32, 96, 224}, {16, 144, 64}, {240, 160, 0}, {144, 48, 192}, {24, 24, 24}}};
    std::size_t colour = 0; // which of the palette
    int width = 6;          // pixels at full pressure on a screen that is not scaled
    int trailLifeMs = 2000;
    int boardLifeMs = 0; // 0: until it is wiped or Board ends
    BackEndName backEnd = BackEndName::Composition;
    bool trailWithPen = true;
    bool trailWithMouse = true;
    bool crossHair = false; // at a pen that hovers
    bool outline = false;   // these as in lumora/params.hpp
    bool pressure = true;
    bool offset = false;
    bool zebra = false;
    HoldKey hold{ControlModifier | ShiftModifier, 0};
    std::array<Hotkey, KeyCommandCount> keys{}; // by KeyCommand; the constructor takes the defaults

    Settings();
};

bool operator==(const Settings& left, const Settings& right);

// What was read, and what could not be: one line each for a person. A member that is missing or wrong keeps
// its default.
struct SettingsReading {
    Settings settings;
    std::vector<std::string> complaints;
    bool isBroken = false; // the text is no JSON object: nothing of it was taken
};

SettingsReading ReadSettings(std::string_view json);

// The whole text of the file. What `previous` (the text that was read, or empty) holds beyond what this
// version knows stays in it.
std::string WriteSettings(const Settings& settings, std::string_view previous);

} // namespace lumora_pen
