// InkML recordings: the W3C's Ink Markup Language of 2011.
#pragma once

#include "recording.h"
#include "time_unit.h"

#include <cstddef>
#include <iosfwd>
#include <optional>

namespace lumora::replay {

// More text than the largest number of samples needs.
inline constexpr std::size_t MaxInkmlBytes = 512U << 20U;

// Reads the traces outside of the definitions, in the order of the file. The channel T is in `told`, or in
// the unit that its format names, or in milliseconds.
RecordingResult ReadInkml(std::istream& input, std::optional<TimeUnit> told = std::nullopt,
                          std::size_t maxBytes = MaxInkmlBytes);

// Writes a trace for every stroke and for every row of hovering samples. What ReadInkml reads from it is the
// same recording.
void WriteInkml(const Recording& recording, std::ostream& output);

} // namespace lumora::replay
