// Keys as texts: what is read, what is not, and that every key comes back as the same.
#include "settings/hotkey.h"

#include <gmock/gmock.h>

namespace lumora_pen {
namespace {

constexpr unsigned Ctrl = ControlModifier;
constexpr unsigned Alt = AltModifier;
constexpr unsigned Shift = ShiftModifier;
constexpr unsigned Win = WindowsModifier;

// The system's numbers, said once more.
std::vector<std::pair<std::string, unsigned>> AllKeys()
{
    std::vector<std::pair<std::string, unsigned>> all = {
        {"Plus", 0xBB},   {"Minus", 0xBD}, {"Escape", 0x1B}, {"Delete", 0x2E}, {"Backspace", 0x08},
        {"Insert", 0x2D}, {"Home", 0x24},  {"End", 0x23},    {"PageUp", 0x21}, {"PageDown", 0x22},
        {"Up", 0x26},     {"Down", 0x28},  {"Left", 0x25},   {"Right", 0x27},  {"Space", 0x20},
        {"Tab", 0x09},    {"Pause", 0x13}, {"Enter", 0x0D}};
    for (unsigned number = 1; number <= 24; ++number) {
        all.emplace_back("F" + std::to_string(number), 0x6F + number);
    }
    for (const char sign : std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789")) {
        all.emplace_back(std::string{sign}, static_cast<unsigned>(sign));
    }
    return all;
}

std::string Lower(std::string text)
{
    for (char& letter : text) {
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + 32) : letter;
    }
    return text;
}

TEST(Hotkey, EveryKeyIsReadWithEveryCombinationOfModifiersAndWrittenAsTheSame)
{
    for (const auto& [name, key] : AllKeys()) {
        for (unsigned modifiers = 0; modifiers < 16; ++modifiers) {
            std::string text = (modifiers & Ctrl) != 0 ? "Ctrl+" : "";
            text += (modifiers & Alt) != 0 ? "Alt+" : "";
            text += (modifiers & Shift) != 0 ? "Shift+" : "";
            text += (modifiers & Win) != 0 ? "Win+" : "";
            text += name;
            EXPECT_EQ(ParseHotkey(text), (Hotkey{modifiers, key})) << text;
            EXPECT_EQ(ParseHotkey(Lower(text)), (Hotkey{modifiers, key})) << Lower(text);
            EXPECT_EQ(TextOf(Hotkey{modifiers, key}), text);
        }
    }
}

TEST(Hotkey, NumbersThatAreNoKeyAreWrittenAsOff)
{
    std::size_t named = 0;
    for (unsigned key = 0; key < 0x200; ++key) {
        const std::string text = TextOf(Hotkey{Ctrl, key});
        named += text != "off" ? 1 : 0;
    }
    EXPECT_EQ(named, AllKeys().size());
}

struct GoodHotkey {
    const char* text;
    Hotkey key;
};

class GoodHotkeys : public testing::TestWithParam<GoodHotkey> {};

TEST_P(GoodHotkeys, AreRead) { EXPECT_EQ(ParseHotkey(GetParam().text), GetParam().key); }

INSTANTIATE_TEST_SUITE_P(Texts, GoodHotkeys,
                         testing::Values(GoodHotkey{"off", {}}, GoodHotkey{" OFF\t", {}}, //
                                         GoodHotkey{"ctrl + alt + b", {Ctrl | Alt, 'B'}},
                                         GoodHotkey{" Alt+Ctrl+B ", {Ctrl | Alt, 'B'}}, // any order
                                         GoodHotkey{"\tShift\t+\tF9", {Shift, 0x78}},   //
                                         GoodHotkey{"f10", {0, 0x79}},                  //
                                         GoodHotkey{"Win+PAGEDOWN", {Win, 0x22}},       //
                                         GoodHotkey{"Ctrl+Plus", {Ctrl, 0xBB}}));

class BadHotkeys : public testing::TestWithParam<const char*> {};

TEST_P(BadHotkeys, AreNone) { EXPECT_EQ(ParseHotkey(GetParam()), std::nullopt) << GetParam(); }

INSTANTIATE_TEST_SUITE_P(Texts, BadHotkeys,
                         testing::Values("", " ", "+", "++", "Ctrl", "Ctrl+", "+B", "Ctrl++", "Ctrl++B",
                                         "Ctrl+Alt", "B+Ctrl", "Ctrl+B+C", "Ctrl+Ctrl+B", "Hyper+B", "Ctrl-B",
                                         "Ctrl B", "BB", "F0", "F25", "F01", "F1x", "F100", "FF", "Ctrl+off",
                                         "off+B", "LeftButton", "Page Up", "\xC3\x84", "Ctrl+\xC3\xA4", "1.",
                                         "!", "[", "`"));

TEST(Hotkey, ATextMayHoldAnyByte)
{
    EXPECT_EQ(ParseHotkey(std::string_view("B\0", 2)), std::nullopt);
    EXPECT_EQ(ParseHotkey(std::string_view("\0", 1)), std::nullopt);
    EXPECT_EQ(ParseHotkey(std::string(100000, '+')), std::nullopt);
}

TEST(HoldKey, EveryButtonIsReadWithEveryCombinationOfModifiersAndWrittenAsTheSame)
{
    const std::vector<std::pair<std::string, unsigned>> buttons = {
        {"", 0},         {"LeftButton", 1}, {"RightButton", 2}, {"MiddleButton", 4},
        {"XButton1", 5}, {"XButton2", 6}};
    for (const auto& [name, button] : buttons) {
        for (unsigned modifiers = 0; modifiers < 16; ++modifiers) {
            const HoldKey hold{modifiers, button};
            const std::string text = TextOf(hold);
            if (modifiers == 0 && button == 0) {
                EXPECT_EQ(text, "");
                EXPECT_EQ(ParseHoldKey(text), std::nullopt);
            } else {
                EXPECT_TRUE(text.ends_with(name)) << text;
                EXPECT_EQ(ParseHoldKey(text), hold) << text;
                EXPECT_EQ(ParseHoldKey(Lower(text)), hold) << text;
            }
        }
    }
}

TEST(HoldKey, IsWrittenInOneOrder)
{
    EXPECT_EQ(TextOf(HoldKey{Ctrl | Shift, 0}), "Ctrl+Shift");
    EXPECT_EQ(TextOf(HoldKey{Ctrl | Alt | Shift | Win, 2}), "Ctrl+Alt+Shift+Win+RightButton");
    EXPECT_EQ(TextOf(HoldKey{0, 5}), "XButton1");
}

TEST(HoldKey, MayHaveBlanksAndAnyOrderOfModifiers)
{
    EXPECT_EQ(ParseHoldKey(" shift + CTRL "), (HoldKey{Ctrl | Shift, 0}));
    EXPECT_EQ(ParseHoldKey("win + alt + middlebutton"), (HoldKey{Win | Alt, 4}));
}

class BadHoldKeys : public testing::TestWithParam<const char*> {};

TEST_P(BadHoldKeys, AreNone) { EXPECT_EQ(ParseHoldKey(GetParam()), std::nullopt) << GetParam(); }

INSTANTIATE_TEST_SUITE_P(Texts, BadHoldKeys,
                         testing::Values("", " ", "+", "off", "Ctrl+", "+Ctrl", "Ctrl+Ctrl", "Ctrl+B", "F9",
                                         "LeftButton+Ctrl", "LeftButton+RightButton", "XButton3", "Button"));

TEST(HeldHoldKey, NeedsAllItsModifiers)
{
    const HoldKey hold{Ctrl | Shift, 0};
    EXPECT_TRUE(IsHeld(hold, Ctrl | Shift, false));
    EXPECT_TRUE(IsHeld(hold, Ctrl | Shift, true));
    EXPECT_FALSE(IsHeld(hold, Ctrl, false));
    EXPECT_FALSE(IsHeld(hold, Shift, false));
    EXPECT_FALSE(IsHeld(hold, 0, true));
}

TEST(HeldHoldKey, NeedsItsButton)
{
    EXPECT_TRUE(IsHeld({Ctrl, 2}, Ctrl, true));
    EXPECT_FALSE(IsHeld({Ctrl, 2}, Ctrl, false));
    EXPECT_FALSE(IsHeld({Ctrl, 2}, 0, true));
    EXPECT_TRUE(IsHeld({0, 5}, 0, true));
    EXPECT_FALSE(IsHeld({0, 5}, Shift, true));
}

TEST(HeldHoldKey, IsNotHeldByAltGrWhichIsCtrlAndAlt)
{
    EXPECT_FALSE(IsHeld({Ctrl, 0}, Ctrl | Alt, false));
    EXPECT_FALSE(IsHeld({Alt, 0}, Ctrl | Alt, false));
    EXPECT_FALSE(IsHeld({Ctrl | Shift, 0}, Ctrl | Alt, false));
    EXPECT_FALSE(
        IsHeld({Ctrl | Shift, 0}, Ctrl | Alt | Shift, false)); // AltGr and Shift, as capitals are typed
    EXPECT_FALSE(IsHeld({0, 5}, Ctrl | Alt, true));
    EXPECT_TRUE(IsHeld({Ctrl | Alt, 0}, Ctrl | Alt, false)); // who chooses both means both
}

TEST(HeldHoldKey, IsNeverHeldWhenItIsNothing)
{
    EXPECT_FALSE(IsHeld({}, 0, false));
    EXPECT_FALSE(IsHeld({}, 0, true));
}

} // namespace
} // namespace lumora_pen
