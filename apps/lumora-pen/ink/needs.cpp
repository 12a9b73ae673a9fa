// Which keys and reports the program needs.
#include "ink/needs.h"

#include <algorithm>

namespace lumora_pen {

namespace {

bool IsAlwaysThere(KeyCommand command) { return command == KeyCommand::Board || command == KeyCommand::Wipe; }

bool IsForBoardAlone(KeyCommand command)
{
    return command == KeyCommand::EndBoard || command == KeyCommand::WipeBoard;
}

// The key that does it now; none where it does nothing.
Hotkey KeyNow(KeyCommand command, const Doing& doing, const Settings& settings)
{
    Hotkey key = settings.keys[static_cast<std::size_t>(command)];
    if (IsAlwaysThere(command) || doing.mode == Mode::Board) {
        return key;
    }
    if (IsForBoardAlone(command) || !doing.holds) {
        return {};
    }
    key.modifiers |= settings.hold.modifiers;
    return key;
}

} // namespace

bool operator==(const NeededKey& left, const NeededKey& right)
{
    return left.command == right.command && left.key == right.key;
}

Needs NeedsOf(const Doing& doing, const Settings& settings)
{
    Needs needs;
    needs.board = doing.mode == Mode::Board;
    needs.mouse = doing.mode == Mode::Trail && settings.trailWithMouse;
    needs.pens = doing.mode == Mode::Trail && settings.trailWithPen;
    for (const KeyDefault& known : KeyDefaults()) {
        const Hotkey key = KeyNow(known.command, doing, settings);
        const bool isThere = std::any_of(needs.keys.begin(), needs.keys.end(),
                                         [&](const NeededKey& other) { return other.key == key; });
        if (key.key != 0 && !isThere) {
            needs.keys.push_back({known.command, key});
        }
    }
    return needs;
}

} // namespace lumora_pen
