// Names, references and delimited pieces of an XML text.
#include "xml_cursor.h"
#include "number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

namespace lumora::replay {

namespace {

constexpr std::string_view NameEnds = " \t\r\n/>=<&'\"";

// Letters beyond ASCII are all taken for parts of names.
bool StartsName(char character)
{
    const auto letter = static_cast<unsigned char>(character | 0x20);
    return (letter >= 'a' && letter <= 'z') || character == '_' ||
           static_cast<unsigned char>(character) >= 0x80;
}

bool InName(char character)
{
    return StartsName(character) || (character >= '0' && character <= '9') || character == '-' ||
           character == '.' || character == ':';
}

std::string Utf8(std::uint32_t code)
{
    const auto tail = [code](unsigned shift) { return static_cast<char>(0x80U | (code >> shift & 0x3FU)); };
    if (code < 0x80) {
        return {static_cast<char>(code)};
    }
    if (code < 0x800) {
        return {static_cast<char>(0xC0U | code >> 6), tail(0)};
    }
    if (code < 0x10000) {
        return {static_cast<char>(0xE0U | code >> 12), tail(6), tail(0)};
    }
    return {static_cast<char>(0xF0U | code >> 18), tail(12), tail(6), tail(0)};
}

std::optional<std::uint32_t> CharacterCode(std::string_view digits)
{
    constexpr std::uint32_t LastCode = 0x10FFFF;
    const bool hexadecimal = digits.starts_with('x');
    digits.remove_prefix(hexadecimal ? 1 : 0);
    std::uint32_t code = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), code, hexadecimal ? 16 : 10);
    const bool whole = error == std::errc{} && end == digits.data() + digits.size();
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return whole && code != 0 && code <= LastCode && !surrogate ? std::optional(code) : std::nullopt;
}

std::optional<std::string> Entity(std::string_view name)
{
    struct Named {
        std::string_view name;
        char character;
    };
    constexpr std::array<Named, 5> Known = {Named{"lt", '<'}, Named{"gt", '>'}, Named{"amp", '&'},
                                            Named{"apos", '\''}, Named{"quot", '"'}};
    if (name.starts_with('#')) {
        const std::optional<std::uint32_t> code = CharacterCode(name.substr(1));
        return code ? std::optional(Utf8(*code)) : std::nullopt;
    }
    const auto found =
        std::find_if(Known.begin(), Known.end(), [name](const Named& known) { return known.name == name; });
    return found != Known.end() ? std::optional(std::string(1, found->character)) : std::nullopt;
}

} // namespace

bool IsXmlBlank(std::string_view text) { return text.find_first_not_of(XmlBlanks) == std::string_view::npos; }

bool XmlCursor::Skip(std::string_view text)
{
    const bool here = StartsWith(text);
    if (here) {
        Take_(text.size());
    }
    return here;
}

bool XmlCursor::SkipBlanks()
{
    return !Take_(std::min(rest.find_first_not_of(XmlBlanks), rest.size())).empty();
}

std::string_view XmlCursor::TakeUntilAny(std::string_view characters)
{
    return Take_(std::min(rest.find_first_of(characters), rest.size()));
}

std::string_view XmlCursor::TakeBefore(std::string_view end, std::string_view what)
{
    const std::size_t length = rest.find(end);
    if (length == std::string_view::npos) {
        Fail(std::string(what) + " has no end");
    }
    const std::string_view taken = Take_(length);
    Take_(end.size());
    return taken;
}

std::string_view XmlCursor::TakeName()
{
    const std::size_t length = std::min(rest.find_first_of(NameEnds), rest.size());
    const std::string_view name = rest.substr(0, length);
    if (name.empty() || !StartsName(name.front()) || !std::all_of(name.begin(), name.end(), InName)) {
        Fail("a name is expected here, not " + Quoted(name.empty() ? rest.substr(0, 1) : name));
    }
    return Take_(length);
}

std::string XmlCursor::TakeReference()
{
    Skip("&");
    const std::string_view name = TakeUntilAny("; \t\r\n<&\"'");
    const std::optional<std::string> text = Skip(";") ? Entity(name) : std::nullopt;
    if (!text) {
        Fail("there is no entity " + Quoted("&" + std::string(name) + ";"));
    }
    return *text;
}

std::string_view XmlCursor::Take_(std::size_t length)
{
    const std::string_view taken = rest.substr(0, length);
    line += static_cast<std::size_t>(std::count(taken.begin(), taken.end(), '\n'));
    rest.remove_prefix(length);
    return taken;
}

} // namespace lumora::replay
