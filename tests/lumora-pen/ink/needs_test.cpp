// What the program listens to in each of its ways to write.
#include "ink/needs.h"

#include <gmock/gmock.h>

namespace lumora_pen {

namespace {

using testing::Contains;
using testing::Not;
using testing::UnorderedElementsAre;

std::vector<KeyCommand> CommandsOf(const Needs& needs)
{
    std::vector<KeyCommand> commands;
    for (const NeededKey& key : needs.keys) {
        commands.push_back(key.command);
    }
    return commands;
}

Hotkey KeyOf(const Needs& needs, KeyCommand command)
{
    for (const NeededKey& key : needs.keys) {
        if (key.command == command) {
            return key.key;
        }
    }
    return {};
}

TEST(Needs, TrailListensToMouseAndPensAndTakesTwoKeys)
{
    const Needs needs = NeedsOf({Mode::Trail, false}, {});
    EXPECT_FALSE(needs.board);
    EXPECT_TRUE(needs.mouse);
    EXPECT_TRUE(needs.pens);
    EXPECT_THAT(CommandsOf(needs), UnorderedElementsAre(KeyCommand::Board, KeyCommand::Wipe));
}

TEST(Needs, TrailWithoutMouseOrPenDoesNotListenToThem)
{
    Settings settings;
    settings.trailWithMouse = false;
    EXPECT_FALSE(NeedsOf({}, settings).mouse);
    EXPECT_TRUE(NeedsOf({}, settings).pens);
    settings.trailWithPen = false;
    EXPECT_FALSE(NeedsOf({}, settings).pens);
}

TEST(Needs, ColoursAndWidthsHaveKeysWithTheHoldKeyWhileItIsDown)
{
    const Needs needs = NeedsOf({Mode::Trail, true}, {});
    EXPECT_EQ(KeyOf(needs, KeyCommand::Colour3), (Hotkey{ControlModifier | ShiftModifier, '3'}));
    EXPECT_THAT(CommandsOf(needs), Contains(KeyCommand::Wider));
    EXPECT_THAT(CommandsOf(needs), Not(Contains(KeyCommand::EndBoard)));
    EXPECT_THAT(CommandsOf(needs), Not(Contains(KeyCommand::WipeBoard)));
}

TEST(Needs, BoardTakesItsKeysBareAndNoRawReports)
{
    const Needs needs = NeedsOf({Mode::Board, false}, {});
    EXPECT_TRUE(needs.board);
    EXPECT_FALSE(needs.mouse);
    EXPECT_FALSE(needs.pens);
    EXPECT_EQ(KeyOf(needs, KeyCommand::Colour3), (Hotkey{0, '3'}));
    EXPECT_EQ(needs.keys.size(), KeyCommandCount);
}

TEST(Needs, KeyThatIsOffIsNotTaken)
{
    Settings settings;
    settings.keys[static_cast<std::size_t>(KeyCommand::Board)] = {};
    EXPECT_THAT(CommandsOf(NeedsOf({}, settings)), UnorderedElementsAre(KeyCommand::Wipe));
}

TEST(Needs, OfTwoCommandsWithOneKeyTheFirstHasIt)
{
    Settings settings;
    settings.keys[static_cast<std::size_t>(KeyCommand::Wipe)] =
        settings.keys[static_cast<std::size_t>(KeyCommand::Board)];
    EXPECT_THAT(CommandsOf(NeedsOf({}, settings)), UnorderedElementsAre(KeyCommand::Board));
}

} // namespace

} // namespace lumora_pen
