// How narrow texts are cut before they are converted for a back-end.
#pragma once

#include <array>
#include <cstddef>

namespace zq::LM {

// A text is converted over this many bytes, whatever its length; what lies behind its terminator is zero.
inline constexpr std::size_t ConvertedTextBytes = 100;

using ConvertedText = std::array<char, ConvertedTextBytes>;

// The first bytes of `text` up to its terminator, filled up with zeroes: nothing behind the terminator is
// read.
ConvertedText CutText(const char* text);

} // namespace zq::LM
