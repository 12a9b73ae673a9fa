// The menu commands that set the log level, and which of them stands for a level.
#pragma once

#include <cstdint>
#include <optional>

namespace zq::LM {

// Nothing for any other command.
std::optional<std::uint32_t> LogLevelOfCommand(unsigned command);

// A level without a command of its own counts as none.
unsigned CommandOfLogLevel(std::uint32_t level);

} // namespace zq::LM
