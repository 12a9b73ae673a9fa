// The brush-data message: a kind by name and its payload, which change ink colour, brush size and ink life.
//
// The kind's name, a word that counts the payload's bytes, the payload: see docs/brush-data.md. The decoder
// knows the payload by the kind and takes the word only for how much it wipes afterwards.
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

// How much of an applied message is wiped: enough that it can be taken for no message again. The sum takes
// one byte for each of the name's two-byte code units, so bytes at the end may be left.
std::uint64_t BrushDataWipeLength(BrushDataKind kind, std::uint32_t payloadSize);

// Applies the message to the record and wipes it. Returns the kind that was applied; with Nothing, message
// and record are as they were. The caller answers for the buffer: it is trusted to hold what is read and
// wiped.
BrushDataKind DecodeBrushData(Params& params, std::uint8_t* message);

// The same for bytes of unknown origin: what is missing of a message counts as 0, and nothing outside is
// touched.
BrushDataKind DecodeReceivedBrushData(Params& params, std::span<const std::uint8_t> received);

} // namespace zq::LM
