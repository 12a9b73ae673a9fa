// Colours and back-ends as words, in the settings file and on the command line alike.
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

} // namespace lumora_pen
