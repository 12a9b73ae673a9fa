// What stands in the icon's menu, as a consequence of the program's state.
#pragma once

#include "ink/needs.h"

#include <cstddef>
#include <optional>

namespace lumora_pen {

enum class MenuCommand : unsigned {
    None,
    TrailWithPen,
    TrailWithMouse,
    Board,
    Settings,
    OpenSettingsFile,
    Wipe,
    About,
    Quit,
    // Each of these is followed by its choices.
    Colour = 100,
    Width = 200,
    TrailLife = 300,
    BoardLife = 400,
    BackEnd = 500,
};

inline constexpr std::array<int, 7> MenuWidths = {2, 4, 6, 10, 16, 26, 48};
inline constexpr std::array<int, 6> MenuTrailLives = {500, 1000, 2000, 4000, 8000, 20'000};
inline constexpr std::array<int, 4> MenuBoardLives = {0, 5000, 15'000, 60'000};

struct MenuItem {
    std::string text; // UTF-8, "&" before the letter that chooses it; empty: a line between groups
    unsigned id = 0;
    bool isChecked = false;
    std::optional<lumora::Colour> swatch;
};

struct MenuEntry {
    MenuItem item;
    std::vector<MenuItem> choices; // of its submenu, if it has one
};

struct MenuState {
    Mode mode = Mode::Trail;
    Settings settings;
    BackEndName backEndInUse = BackEndName::Composition;
    std::vector<NeededKey> takenKeys; // by other programs
};

std::vector<MenuEntry> MenuOf(const MenuState& state);

// What a chosen id stands for, and which of its choices.
struct MenuChoice {
    MenuCommand command = MenuCommand::None;
    std::size_t choice = 0;
};
MenuChoice ChoiceOf(unsigned id);

} // namespace lumora_pen
