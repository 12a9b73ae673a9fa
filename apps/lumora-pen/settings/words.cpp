// Colours and back-ends as words.
#include "settings/words.h"

#include <array>
#include <charconv>

namespace lumora_pen {

namespace {

struct BackEndWord {
    BackEndName backEnd;
    std::string_view word;
};

constexpr std::array<BackEndWord, 3> BackEndWords{{{BackEndName::Composition, "composition"},
                                                   {BackEndName::Direct2D, "direct2d"},
                                                   {BackEndName::GDI, "gdi"}}};

void AppendHexadecimal(std::string& text, unsigned value)
{
    constexpr std::string_view Digits = "0123456789ABCDEF";
    text += Digits[value / 16];
    text += Digits[value % 16];
}

} // namespace

std::optional<lumora::Colour> ParseColour(std::string_view text)
{
    if (!text.empty() && text.front() == '#') {
        text.remove_prefix(1);
    }
    unsigned value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, 16);
    if (text.size() != 6 || error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return lumora::Colour{static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 8),
                          static_cast<std::uint8_t>(value)};
}

std::string TextOf(const lumora::Colour& colour)
{
    std::string text = "#";
    AppendHexadecimal(text, colour.red);
    AppendHexadecimal(text, colour.green);
    AppendHexadecimal(text, colour.blue);
    return text;
}

std::optional<BackEndName> ParseBackEnd(std::string_view text)
{
    for (const BackEndWord& known : BackEndWords) {
        if (known.word == text) {
            return known.backEnd;
        }
    }
    return std::nullopt;
}

std::string TextOf(BackEndName backEnd)
{
    for (const BackEndWord& known : BackEndWords) {
        if (known.backEnd == backEnd) {
            return std::string(known.word);
        }
    }
    return {};
}

std::string Quoted(std::string_view text) { return std::string("\"").append(text).append("\""); }

} // namespace lumora_pen
