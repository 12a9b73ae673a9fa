// How ink looks and how long it lives, from what a person has chosen.
#pragma once

#include "settings/settings.h"

#include <cstdint>

namespace lumora_pen {

enum class Mode { Trail, Board };

// Ink that the Board takes over lives so long as Lumora's: longer than the hand-over needs even on a bad day,
// and short, since all living ink is drawn anew in each frame.
inline constexpr int WetInkMs = 800;

// Pixels of a monitor on which 100 % are 96 dots an inch.
inline constexpr int UnscaledDpi = 96;

// True where the Board itself keeps the ink, until it is wiped.
bool KeepsInk(Mode mode, const Settings& settings);

// `current` holds what the library's own dialog knows and the settings do not.
lumora::Params StyleFor(Mode mode, const Settings& settings, int dpi, lumora::Params current);

// The settings after a person has changed `style` in the library's dialog. What the dialog cannot show it has
// lowered by itself; that is not taken for a choice.
Settings WithChoicesOf(const lumora::Params& style, Mode mode, int dpi, Settings settings);

// The colour as the command line says it: a place of the palette from 1 on, or a colour for the chosen place.
// What is neither changes nothing.
Settings WithColour(Settings settings, std::string_view colour);

// The next width of a person's scale, thicker or thinner.
int WiderThan(int width);
int NarrowerThan(int width);

} // namespace lumora_pen
