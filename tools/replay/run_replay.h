// The program as a function, so that another program can be built around the same parts.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <windows.h>

namespace lumora::replay {

// Puts something under the loaded library before its first use; what it gives lives until after the last.
using MakeUnderlay = std::function<std::shared_ptr<void>(HMODULE library)>;

// `arguments` are those after the program's name, in UTF-8. Returns the exit status.
int RunReplay(const std::vector<std::string>& arguments, const MakeUnderlay& makeUnderlay = {});

} // namespace lumora::replay
