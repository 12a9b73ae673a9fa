// The shell's desktop window, which says where the screen is.
#include "render/shell_window.h"

namespace zq::LM {

std::optional<RECT> ShellWindowRect()
{
    RECT rectangle{};
    return GetWindowRect(GetShellWindow(), &rectangle) != 0 ? std::optional(rectangle) : std::nullopt;
}

std::optional<RECT> ShellClientRect()
{
    RECT rectangle{};
    return GetClientRect(GetShellWindow(), &rectangle) != 0 ? std::optional(rectangle) : std::nullopt;
}

} // namespace zq::LM
