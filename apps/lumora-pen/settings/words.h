// Colours and back-ends as words, in the settings file, on the command line and in messages alike.
#pragma once

#include "settings/settings.h"

#include <optional>
#include <string>
#include <string_view>

namespace lumora_pen {

// Six hexadecimal digits, with or without "#" before them.
std::optional<lumora::Colour> ParseColour(std::string_view text);
std::string TextOf(const lumora::Colour& colour); // "#RRGGBB"

std::optional<BackEndName> ParseBackEnd(std::string_view text);
std::string TextOf(BackEndName backEnd);

// As messages show what somebody has written.
std::string Quoted(std::string_view text);

} // namespace lumora_pen
