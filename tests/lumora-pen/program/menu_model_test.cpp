// The icon's menu.
#include "program/menu_model.h"

#include <gmock/gmock.h>

#include <set>

namespace lumora_pen {

namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

// All items that can be chosen, also those of submenus.
std::vector<MenuItem> Leaves(const std::vector<MenuEntry>& entries)
{
    std::vector<MenuItem> leaves;
    for (const MenuEntry& entry : entries) {
        leaves.insert(leaves.end(), entry.choices.begin(), entry.choices.end());
        leaves.push_back(entry.item);
    }
    std::erase_if(leaves, [](const MenuItem& item) { return item.id == 0; });
    return leaves;
}

MenuItem Find(const MenuState& state, MenuCommand command, std::size_t choice = 0)
{
    for (const MenuItem& item : Leaves(MenuOf(state))) {
        if (ChoiceOf(item.id).command == command && ChoiceOf(item.id).choice == choice) {
            return item;
        }
    }
    return {};
}

std::vector<std::string> CheckedTexts(const MenuState& state)
{
    std::vector<std::string> texts;
    for (const MenuItem& item : Leaves(MenuOf(state))) {
        if (item.isChecked) {
            texts.push_back(item.text);
        }
    }
    return texts;
}

TEST(PenMenu, EveryItemHasANumberOfItsOwn)
{
    std::set<unsigned> ids;
    const auto leaves = Leaves(MenuOf({}));
    for (const MenuItem& item : leaves) {
        EXPECT_TRUE(ids.insert(item.id).second) << item.text;
    }
    EXPECT_EQ(leaves.size(),
              8 + ColourCount + MenuWidths.size() + MenuTrailLives.size() + MenuBoardLives.size() + 3);
}

TEST(PenMenu, ChecksWhatIsOn)
{
    EXPECT_TRUE(Find({}, MenuCommand::TrailWithPen).isChecked);
    EXPECT_TRUE(Find({}, MenuCommand::TrailWithMouse).isChecked);
    EXPECT_FALSE(Find({}, MenuCommand::Board).isChecked);
    MenuState state;
    state.mode = Mode::Board;
    state.settings.trailWithPen = false;
    state.settings.colour = 2;
    state.settings.width = 16;
    state.settings.trailLifeMs = 4000;
    state.settings.boardLifeMs = 15'000;
    state.backEndInUse = BackEndName::GDI;
    EXPECT_TRUE(Find(state, MenuCommand::Board).isChecked);
    EXPECT_FALSE(Find(state, MenuCommand::TrailWithPen).isChecked);
    EXPECT_TRUE(Find(state, MenuCommand::Colour, 2).isChecked);
    EXPECT_FALSE(Find(state, MenuCommand::Colour, 0).isChecked);
    EXPECT_THAT(CheckedTexts(state), Contains("16 pixels"));
    EXPECT_THAT(CheckedTexts(state), Contains("Trail: 4 s"));
    EXPECT_THAT(CheckedTexts(state), Contains("Board: 15 s"));
    EXPECT_THAT(CheckedTexts(state), Contains("&GDI"));
    EXPECT_THAT(CheckedTexts(state), Not(Contains("&Composition")));
}

TEST(PenMenu, HalfSecondsAreWritten) { EXPECT_EQ(Find({}, MenuCommand::TrailLife, 0).text, "Trail: 0.5 s"); }

TEST(PenMenu, ColoursShowThemselves)
{
    MenuState state;
    state.settings.palette[1] = {1, 2, 3};
    EXPECT_EQ(Find(state, MenuCommand::Colour, 1).swatch, (lumora::Colour{1, 2, 3}));
}

TEST(PenMenu, KeysStandBesideWhatTheyDo)
{
    EXPECT_THAT(Find({}, MenuCommand::Board).text, HasSubstr("\tCtrl+Alt+B"));
    EXPECT_THAT(Find({}, MenuCommand::TrailWithMouse).text, HasSubstr("hold Ctrl+Shift"));
    MenuState state;
    state.settings.keys[static_cast<std::size_t>(KeyCommand::Board)] = {};
    EXPECT_EQ(Find(state, MenuCommand::Board).text, "&Board");
}

TEST(PenMenu, KeyThatAnotherProgramHasIsNamed)
{
    MenuState state;
    state.takenKeys = {{KeyCommand::Board, state.settings.keys[0]}};
    EXPECT_THAT(Find(state, MenuCommand::Board).text, HasSubstr("Ctrl+Alt+B is taken"));
    EXPECT_THAT(Find(state, MenuCommand::Wipe).text, Not(HasSubstr("taken")));
}

TEST(PenMenu, NothingChosenIsNothing) { EXPECT_EQ(ChoiceOf(0).command, MenuCommand::None); }

} // namespace

} // namespace lumora_pen
