// Numbers of recordings as text, and foreign text in messages.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace lumora::replay {

// A decimal number without anything around it, exponents included; infinite where it is beyond any range.
std::optional<double> ParseNumber(std::string_view text);

// A product as a person would have written it: 7.2, not 7.1999999999999993.
double WithoutRoundingErrors(double product);

// The shortest text without an exponent that is read back as the same number.
std::string NumberText(double number);

// Makes foreign text fit for an error message: one short line of printable characters.
std::string Quoted(std::string_view text);

} // namespace lumora::replay
