// The program as a function, so that another program can be built around the same parts.
#pragma once

#include <string>
#include <vector>

namespace lumora::replay {

// `arguments` are those after the program's name, in UTF-8. Returns the exit status.
int RunReplay(const std::vector<std::string>& arguments);

} // namespace lumora::replay
