// The menu's items.
#include "program/menu_model.h"

#include <algorithm>

namespace lumora_pen {

namespace {

constexpr unsigned ChoicesOfACommand = 100;

constexpr std::array<std::string_view, 3> BackEndItems = {"&Composition", "&Direct2D", "&GDI"};

unsigned IdOf(MenuCommand command, std::size_t choice = 0)
{
    return static_cast<unsigned>(command) + static_cast<unsigned>(choice);
}

// The key stands behind a tab, at the menu's right edge.
std::string WithKey(std::string text, KeyCommand command, const MenuState& state)
{
    const Hotkey& key = state.settings.keys[static_cast<std::size_t>(command)];
    if (key.key == 0) {
        return text;
    }
    const bool isTaken = std::any_of(state.takenKeys.begin(), state.takenKeys.end(),
                                     [&](const NeededKey& taken) { return taken.command == command; });
    return text + '\t' + TextOf(key) + (isTaken ? " is taken" : "");
}

std::string SecondsText(int milliseconds)
{
    std::string text = std::to_string(milliseconds / 1000);
    if (milliseconds % 1000 != 0) {
        text += '.' + std::to_string(milliseconds % 1000 / 100);
    }
    return text + " s";
}

std::vector<MenuItem> Colours(const MenuState& state)
{
    std::vector<MenuItem> items;
    for (std::size_t i = 0; i < ColourCount; ++i) {
        const auto command = static_cast<KeyCommand>(static_cast<std::size_t>(KeyCommand::Colour1) + i);
        items.push_back({WithKey(std::string("&").append(std::to_string(i + 1)), command, state),
                         IdOf(MenuCommand::Colour, i), state.settings.colour == i,
                         state.settings.palette[i]});
    }
    return items;
}

template <std::size_t Count, typename Text>
std::vector<MenuItem> Numbers(MenuCommand command, const std::array<int, Count>& numbers, int current,
                              Text text)
{
    std::vector<MenuItem> items;
    items.reserve(Count);
    for (std::size_t i = 0; i < Count; ++i) {
        items.push_back({text(numbers[i]), IdOf(command, i), numbers[i] == current, {}});
    }
    return items;
}

std::vector<MenuItem> BackEnds(const MenuState& state)
{
    std::vector<MenuItem> items;
    items.reserve(BackEndItems.size());
    for (std::size_t i = 0; i < BackEndItems.size(); ++i) {
        items.push_back({std::string(BackEndItems[i]),
                         IdOf(MenuCommand::BackEnd, i),
                         static_cast<std::size_t>(state.backEndInUse) == i,
                         {}});
    }
    return items;
}

std::vector<MenuItem> Lives(const MenuState& state)
{
    std::vector<MenuItem> items = Numbers(MenuCommand::TrailLife, MenuTrailLives, state.settings.trailLifeMs,
                                          [](int life) { return "Trail: " + SecondsText(life); });
    items.push_back({});
    const auto board =
        Numbers(MenuCommand::BoardLife, MenuBoardLives, state.settings.boardLifeMs, [](int life) {
            return life == 0 ? std::string("Board: until it is wiped") : "Board: " + SecondsText(life);
        });
    items.insert(items.end(), board.begin(), board.end());
    return items;
}

} // namespace

std::vector<MenuEntry> MenuOf(const MenuState& state)
{
    const Settings& settings = state.settings;
    const auto pixels = [](int width) { return std::to_string(width) + " pixels"; };
    const auto item = [](std::string text, MenuCommand command, bool isChecked = false) {
        return MenuEntry{{std::move(text), IdOf(command), isChecked, {}}, {}};
    };
    const auto menu = [](std::string text, std::vector<MenuItem> choices) {
        return MenuEntry{{std::move(text), 0, false, {}}, std::move(choices)};
    };
    return {
        item("Trail with &pen", MenuCommand::TrailWithPen, settings.trailWithPen),
        item(std::string("Trail with &mouse\thold ").append(TextOf(settings.hold)),
             MenuCommand::TrailWithMouse, settings.trailWithMouse),
        item(WithKey("&Board", KeyCommand::Board, state), MenuCommand::Board, state.mode == Mode::Board),
        {},
        menu("&Colour", Colours(state)),
        menu("Wi&dth", Numbers(MenuCommand::Width, MenuWidths, settings.width, pixels)),
        menu("Ink &life", Lives(state)),
        menu("Bac&k-end", BackEnds(state)),
        item("&Settings...", MenuCommand::Settings),
        item("&Keys and more (settings file)...", MenuCommand::OpenSettingsFile),
        {},
        item(WithKey("&Wipe", KeyCommand::Wipe, state), MenuCommand::Wipe),
        item("&About...", MenuCommand::About),
        item("&Quit", MenuCommand::Quit),
    };
}

MenuChoice ChoiceOf(unsigned id)
{
    if (id < ChoicesOfACommand) {
        return {static_cast<MenuCommand>(id), 0};
    }
    return {static_cast<MenuCommand>(id / ChoicesOfACommand * ChoicesOfACommand), id % ChoicesOfACommand};
}

} // namespace lumora_pen
