// The keys that the program takes from all others.
#include "program/global_keys.h"
#include "support/library/window_test.h"

#include <gmock/gmock.h>

namespace lumora_pen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr NeededKey Board = {KeyCommand::Board, {ControlModifier | AltModifier, VK_F7}};
constexpr NeededKey Wipe = {KeyCommand::Wipe, {ControlModifier | AltModifier, VK_F8}};
constexpr int Other = 77;

class Window {
public:
    ~Window() { DestroyWindow(handle); }
    HWND handle =
        CreateWindowExW(0, L"STATIC", L"keys", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
};

bool IsFree(const NeededKey& key)
{
    Window window;
    const bool isFree = RegisterHotKey(window.handle, Other, key.key.modifiers, key.key.key) != 0;
    UnregisterHotKey(window.handle, Other);
    return isFree;
}

TEST(GlobalKeys, TakesWhatIsNeededAndGivesTheRestBack)
{
    Window window;
    GlobalKeys keys(window.handle);
    EXPECT_FALSE(keys.Set({Board, Wipe})) << "nothing is taken by another one";
    EXPECT_FALSE(IsFree(Board));
    EXPECT_FALSE(IsFree(Wipe));
    keys.Set({Wipe});
    EXPECT_TRUE(IsFree(Board));
    EXPECT_FALSE(IsFree(Wipe));
}

TEST(GlobalKeys, GivesAllBackAtItsEnd)
{
    Window window;
    {
        GlobalKeys keys(window.handle);
        keys.Set({Board});
    }
    EXPECT_TRUE(IsFree(Board));
}

TEST(GlobalKeys, NamesThoseThatAnotherOneHas)
{
    Window another;
    ASSERT_TRUE(RegisterHotKey(another.handle, Other, Board.key.modifiers, Board.key.key));
    Window window;
    GlobalKeys keys(window.handle);
    EXPECT_TRUE(keys.Set({Board, Wipe}));
    EXPECT_THAT(keys.Taken(), ElementsAre(Board));
    EXPECT_FALSE(IsFree(Wipe)) << "the rest goes on";
    EXPECT_FALSE(keys.Has(KeyCommand::Board));
    EXPECT_TRUE(keys.Has(KeyCommand::Wipe));
    EXPECT_FALSE(keys.Set({Board, Wipe})) << "told already";
    UnregisterHotKey(another.handle, Other);
    EXPECT_TRUE(keys.Set({Board, Wipe})) << "it is free by now";
    EXPECT_THAT(keys.Taken(), IsEmpty());
}

TEST(GlobalKeys, AnotherKeyForACommandReplacesTheFirst)
{
    Window window;
    GlobalKeys keys(window.handle);
    keys.Set({Board});
    const NeededKey moved = {KeyCommand::Board, Wipe.key};
    keys.Set({moved});
    EXPECT_TRUE(IsFree(Board));
    EXPECT_FALSE(IsFree(Wipe));
}

} // namespace

} // namespace lumora_pen
