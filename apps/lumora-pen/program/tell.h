// What the program has to say before it has an icon: to the stream that its caller has given it, and into a
// box where there is none, since a program with windows has no console of its own.
#pragma once

#include <string_view>

namespace lumora_pen {

enum class Stream { Output, Error };

void Tell(Stream stream, std::string_view utf8);

} // namespace lumora_pen
