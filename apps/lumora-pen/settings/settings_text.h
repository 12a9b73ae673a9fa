// How the settings file's text is made, for reading and writing alike.
#pragma once

#include "settings/settings.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace lumora_pen {

// More is no settings file, and would only keep the program busy.
inline constexpr std::size_t MostSettingsBytes = 65536;
inline constexpr std::size_t MostSettingsDepth = 32;

inline constexpr int SettingsVersion = 1;

namespace member {

inline constexpr char Version[] = "version";
inline constexpr char Palette[] = "palette";
inline constexpr char Colour[] = "colour"; // 1 to 6, as the keys are called
inline constexpr char Width[] = "width";
inline constexpr char TrailLife[] = "trail-life-ms";
inline constexpr char BoardLife[] = "board-life-ms";
inline constexpr char BackEnd[] = "back-end";
inline constexpr char Hold[] = "hold";
inline constexpr char Keys[] = "keys";

} // namespace member

struct Switch {
    std::string_view name;
    bool Settings::*isOn;
};

inline constexpr std::array Switches = {
    Switch{"trail-with-pen", &Settings::trailWithPen},
    Switch{"trail-with-mouse", &Settings::trailWithMouse},
    Switch{"cross-hair", &Settings::crossHair},
    Switch{"outline", &Settings::outline},
    Switch{"pressure", &Settings::pressure},
    Switch{"offset", &Settings::offset},
    Switch{"zebra", &Settings::zebra},
};

} // namespace lumora_pen
