// Keys as texts, in both directions.
#include "settings/hotkey.h"

#include <algorithm>
#include <array>
#include <vector>

namespace lumora_pen {

namespace {

struct Named {
    std::string_view name;
    unsigned number; // a modifier's bit or the system's virtual key
};

// In the order in which they are written.
constexpr std::array<Named, 4> Modifiers{
    {{"Ctrl", ControlModifier}, {"Alt", AltModifier}, {"Shift", ShiftModifier}, {"Win", WindowsModifier}}};

constexpr std::array<Named, 18> NamedKeys{{
    {"Plus", 0xBB}, // the keys that have these signs in every layout
    {"Minus", 0xBD},
    {"Escape", 0x1B},
    {"Delete", 0x2E},
    {"Backspace", 0x08},
    {"Insert", 0x2D},
    {"Home", 0x24},
    {"End", 0x23},
    {"PageUp", 0x21},
    {"PageDown", 0x22},
    {"Up", 0x26},
    {"Down", 0x28},
    {"Left", 0x25},
    {"Right", 0x27},
    {"Space", 0x20},
    {"Tab", 0x09},
    {"Pause", 0x13},
    {"Enter", 0x0D},
}};

constexpr std::array<Named, 5> Buttons{
    {{"LeftButton", 1}, {"RightButton", 2}, {"MiddleButton", 4}, {"XButton1", 5}, {"XButton2", 6}}};

constexpr unsigned F1 = 0x70;
constexpr unsigned FunctionKeyCount = 24;
constexpr std::string_view Off = "off";

bool IsDigit(char letter) { return letter >= '0' && letter <= '9'; }
bool IsCapital(char letter) { return letter >= 'A' && letter <= 'Z'; }

// Whatever the locale: the names are plain letters.
char Capital(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

bool IsSameName(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char one, char other) { return Capital(one) == Capital(other); });
}

template <std::size_t Count> unsigned NumberOf(const std::array<Named, Count>& table, std::string_view name)
{
    for (const Named& entry : table) {
        if (IsSameName(entry.name, name)) {
            return entry.number;
        }
    }
    return 0;
}

template <std::size_t Count> std::string_view NameOf(const std::array<Named, Count>& table, unsigned number)
{
    for (const Named& entry : table) {
        if (entry.number == number) {
            return entry.name;
        }
    }
    return {};
}

// "F1" to "F24".
unsigned FunctionKeyOf(std::string_view name)
{
    if (name.size() < 2 || name.size() > 3 || Capital(name[0]) != 'F' || name[1] == '0') {
        return 0;
    }
    unsigned number = 0;
    for (const char digit : name.substr(1)) {
        if (!IsDigit(digit)) {
            return 0;
        }
        number = number * 10 + static_cast<unsigned>(digit - '0');
    }
    return number <= FunctionKeyCount ? F1 + number - 1 : 0;
}

unsigned KeyOf(std::string_view name)
{
    if (name.size() == 1) {
        const char letter = Capital(name[0]);
        return IsCapital(letter) || IsDigit(letter) ? static_cast<unsigned>(letter) : 0;
    }
    const unsigned functionKey = FunctionKeyOf(name);
    return functionKey != 0 ? functionKey : NumberOf(NamedKeys, name);
}

std::string NameOfKey(unsigned key)
{
    if ((key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9')) {
        return {static_cast<char>(key)};
    }
    if (key >= F1 && key < F1 + FunctionKeyCount) {
        return std::string("F").append(std::to_string(key - F1 + 1));
    }
    return std::string(NameOf(NamedKeys, key));
}

std::string_view WithoutBlanks(std::string_view text)
{
    constexpr std::string_view Blanks = " \t";
    const std::size_t begin = text.find_first_not_of(Blanks);
    return begin == std::string_view::npos ? std::string_view()
                                           : text.substr(begin, text.find_last_not_of(Blanks) + 1 - begin);
}

std::vector<std::string_view> PartsOf(std::string_view text)
{
    std::vector<std::string_view> parts;
    std::size_t begin = 0;
    for (std::size_t end = text.find('+'); end != std::string_view::npos; end = text.find('+', begin)) {
        parts.push_back(WithoutBlanks(text.substr(begin, end - begin)));
        begin = end + 1;
    }
    parts.push_back(WithoutBlanks(text.substr(begin)));
    return parts;
}

// All of the parts, each once; nothing when one is no modifier.
std::optional<unsigned> ModifiersOf(const std::vector<std::string_view>& parts)
{
    unsigned modifiers = 0;
    for (const std::string_view part : parts) {
        const unsigned modifier = NumberOf(Modifiers, part);
        if (modifier == 0 || (modifiers & modifier) != 0) {
            return std::nullopt;
        }
        modifiers |= modifier;
    }
    return modifiers;
}

std::string Joined(unsigned modifiers, std::string_view last)
{
    std::string text;
    for (const Named& modifier : Modifiers) {
        if ((modifiers & modifier.number) != 0) {
            text.append(text.empty() ? "" : "+").append(modifier.name);
        }
    }
    if (!last.empty()) {
        text.append(text.empty() ? "" : "+").append(last);
    }
    return text;
}

} // namespace

bool operator==(const Hotkey& left, const Hotkey& right)
{
    return left.modifiers == right.modifiers && left.key == right.key;
}

std::optional<Hotkey> ParseHotkey(std::string_view text)
{
    if (IsSameName(WithoutBlanks(text), Off)) {
        return Hotkey();
    }
    std::vector<std::string_view> parts = PartsOf(text);
    const unsigned key = KeyOf(parts.back());
    parts.pop_back();
    const std::optional<unsigned> modifiers = ModifiersOf(parts);
    if (key == 0 || !modifiers) {
        return std::nullopt;
    }
    return Hotkey{*modifiers, key};
}

std::string TextOf(const Hotkey& hotkey)
{
    const std::string name = NameOfKey(hotkey.key);
    return name.empty() ? std::string(Off) : Joined(hotkey.modifiers, name);
}

bool operator==(const HoldKey& left, const HoldKey& right)
{
    return left.modifiers == right.modifiers && left.button == right.button;
}

std::optional<HoldKey> ParseHoldKey(std::string_view text)
{
    std::vector<std::string_view> parts = PartsOf(text);
    const unsigned button = NumberOf(Buttons, parts.back());
    if (button != 0) {
        parts.pop_back();
    }
    const std::optional<unsigned> modifiers = ModifiersOf(parts);
    if (!modifiers) {
        return std::nullopt;
    }
    return HoldKey{*modifiers, button};
}

std::string TextOf(const HoldKey& hold) { return Joined(hold.modifiers, NameOf(Buttons, hold.button)); }

bool IsHeld(const HoldKey& hold, unsigned modifiersDown, bool isButtonDown)
{
    const bool isAnything = hold.modifiers != 0 || hold.button != 0;
    return isAnything && modifiersDown == hold.modifiers && (hold.button == 0 || isButtonDown);
}

} // namespace lumora_pen
