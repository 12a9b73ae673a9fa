// What holds until a person chooses otherwise.
#include "settings/settings.h"

namespace lumora_pen {

// Wiping from everywhere is on a key that no layout has a letter on: AltGr is Ctrl and Alt to the system.
const std::array<KeyDefault, KeyCommandCount>& KeyDefaults()
{
    static constexpr std::array<KeyDefault, KeyCommandCount> Defaults{{
        {KeyCommand::Board, "board", {ControlModifier | AltModifier, 'B'}},
        {KeyCommand::Wipe, "wipe", {ControlModifier | AltModifier, 0x08}}, // Backspace
        {KeyCommand::EndBoard, "end-board", {0, 0x1B}},                    // Escape
        {KeyCommand::WipeBoard, "wipe-board", {0, 0x2E}},                  // Delete
        {KeyCommand::Wider, "wider", {0, 0xBB}},                           // Plus
        {KeyCommand::Narrower, "narrower", {0, 0xBD}},                     // Minus
        {KeyCommand::Colour1, "colour-1", {0, '1'}},
        {KeyCommand::Colour2, "colour-2", {0, '2'}},
        {KeyCommand::Colour3, "colour-3", {0, '3'}},
        {KeyCommand::Colour4, "colour-4", {0, '4'}},
        {KeyCommand::Colour5, "colour-5", {0, '5'}},
        {KeyCommand::Colour6, "colour-6", {0, '6'}},
    }};
    return Defaults;
}

Settings::Settings()
{
    for (const KeyDefault& entry : KeyDefaults()) {
        keys[static_cast<std::size_t>(entry.command)] = entry.key;
    }
}

bool operator==(const Settings& left, const Settings& right)
{
    return left.palette == right.palette && left.colour == right.colour && left.width == right.width &&
           left.trailLifeMs == right.trailLifeMs && left.boardLifeMs == right.boardLifeMs &&
           left.backEnd == right.backEnd && left.trailWithPen == right.trailWithPen &&
           left.trailWithMouse == right.trailWithMouse && left.crossHair == right.crossHair &&
           left.outline == right.outline && left.pressure == right.pressure && left.offset == right.offset &&
           left.zebra == right.zebra && left.hold == right.hold && left.keys == right.keys;
}

} // namespace lumora_pen
