// What --help and --version say.
#pragma once

#include <string>

namespace lumora_pen {

std::string HelpText();
std::string VersionText();

} // namespace lumora_pen
