// What the commands of the tray's menu stand for.
#pragma once

#include "platform/win32/windows_header.h"
#include "render/rendering_type.h"

#include <cstdint>
#include <optional>

namespace zq::LM {

// Nothing for any other command.
std::optional<std::uint32_t> LogLevelOfCommand(unsigned command);
std::optional<RenderingType> RenderingTypeOfCommand(unsigned command);

// A level or type without a command of its own counts as the first.
unsigned CommandOfLogLevel(std::uint32_t level);
unsigned CommandOfRenderingType(RenderingType type);

// Asks for a file for the frame rates and returns when the dialog is closed. Nothing is written: frame rates
// have no file format yet, so the chosen name is dropped. The process's current directory stays as it was.
void AskForRateFile(HWND owner);

} // namespace zq::LM
