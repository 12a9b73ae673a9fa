// The brush-data message: a kind by name and its payload, which change ink colour, brush size and ink life.
//
// A message is the kind's name in UTF-16 with its terminating 0, a 32-bit payload size and the payload, all
// little-endian and at no particular alignment. The payload's size follows from the kind; the size in the
// message only says how much of it is wiped afterwards.
#pragma once

#include "ink/params.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace zq::LM {

// The index into the table of names.
enum class BrushDataKind : std::uint8_t { Nothing, InkColor, BrushSize, InkDecayTime, BrushParams };

// No message, whatever it holds, makes the decoder read beyond so many bytes: BrushParams with its payload.
inline constexpr std::size_t BrushDataReach = 40;

// Exact, and only so far: names that agree for 100 code units without an end are different.
bool IsBrushDataName(const std::uint8_t* message, const char16_t* name);

// Nothing for a name that is no kind's.
BrushDataKind FindBrushDataKind(const std::uint8_t* message);

// In code units without the terminating 0; 0 when there is none among the first 65536.
std::uint16_t CountCodeUnits(const char16_t* name);

// The length of the kind's name in code units; 0 for an index that is no kind's.
std::uint16_t BrushDataNameLength(unsigned index);

// How much of a consumed message is wiped. The name counts by its code units, not its bytes, so the end of a
// message may stay; its first code unit never does, so it cannot be consumed twice.
std::uint64_t BrushDataWipeLength(BrushDataKind kind, std::uint32_t payloadSize);

// Applies the message to the record and wipes it. Returns the kind that was applied; with Nothing, message
// and record are as they were. The caller answers for the buffer: it is trusted to hold what is read and
// wiped.
BrushDataKind DecodeBrushData(Params& params, std::uint8_t* message);

// The same for bytes of unknown origin: what is missing of a message counts as 0, and nothing outside is
// touched.
BrushDataKind DecodeReceivedBrushData(Params& params, std::span<const std::uint8_t> received);

} // namespace zq::LM
