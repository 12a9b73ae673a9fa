// Numbers as text, whatever the system's language makes of a decimal point.
#include "number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace lumora::replay {

std::optional<double> ParseNumber(std::string_view text)
{
    // Words like "inf" and "nan" are numbers to the library's function.
    if (text.find_first_not_of("0123456789+-.eE") != std::string_view::npos) {
        return std::nullopt;
    }
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (end != text.data() + text.size() || error == std::errc::invalid_argument) {
        return std::nullopt;
    }
    return error == std::errc{} ? value : std::numeric_limits<double>::infinity();
}

double WithoutRoundingErrors(double product)
{
    constexpr double PartsOfOne = 1e6;
    return std::round(product * PartsOfOne) / PartsOfOne;
}

std::string NumberText(double number)
{
    constexpr std::size_t Longest = 512;
    std::array<char, Longest> digits = {};
    const auto [end, error] =
        std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed);
    return {digits.data(), end};
}

std::string Quoted(std::string_view text)
{
    constexpr std::size_t MaxShown = 24;
    std::string quoted = "\"";
    for (const char character : text.substr(0, MaxShown)) {
        quoted += character >= ' ' && character <= '~' ? character : '?';
    }
    return quoted + (text.size() > MaxShown ? "...\"" : "\"");
}

} // namespace lumora::replay
