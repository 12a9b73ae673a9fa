// How narrow texts are cut before they are converted for a back-end.
#pragma once

#include <array>
#include <cstddef>

namespace zq::LM {

// Every conversion is of this size: long texts are cut to it, and zeroes fill up short ones.
inline constexpr std::size_t ConvertedTextBytes = 100;

using ConvertedText = std::array<char, ConvertedTextBytes>;

// Reads no byte behind the terminator of `text`.
ConvertedText CutText(const char* text);

} // namespace zq::LM
