// The parameter record inside the library: its defaults, its option bits and the rules that read single
// fields.
#pragma once

#include "lumora/records.h"

#include <cstddef>
#include <cstdint>

namespace zq::LM {

using Params = ::LM_Params;

static_assert(offsetof(Params, reserved0) == 0);
static_assert(offsetof(Params, inkDecayTime) == 4);
static_assert(offsetof(Params, inkColor) == 8);
static_assert(offsetof(Params, minBrushSize) == 12);
static_assert(offsetof(Params, brushSize) == 16);
static_assert(offsetof(Params, maxPressure) == 20);
static_assert(offsetof(Params, line) == 24);
static_assert(offsetof(Params, outline) == 25);
static_assert(offsetof(Params, cursor) == 26);
static_assert(offsetof(Params, usePressure) == 27);
static_assert(offsetof(Params, useOffset) == 28);
static_assert(offsetof(Params, zebraMode) == 29);
static_assert(offsetof(Params, colorPicker) == 30);
static_assert(offsetof(Params, reserved31) == 31);

inline constexpr Params DefaultParams = {
    .reserved0 = 0,
    .inkDecayTime = 100,
    .inkColor = 0x00202020,
    .minBrushSize = 1,
    .brushSize = 10,
    .maxPressure = 0x7FFF,
    .line = 1,
    .outline = 0,
    .cursor = 1,
    .usePressure = 1,
    .useOffset = 0,
    .zebraMode = 0,
    .colorPicker = 0,
    .reserved31 = 0,
};

// One bit for each flag of the record, to ask for several at once. Their order is not the record's.
struct DrawOption {
    enum : std::uint32_t {
        Cursor = 0x0001,
        Line = 0x0002,
        Outline = 0x0004,
        ZebraMode = 0x0008,
        Pressure = 0x0010,
        Offset = 0x0020,
        ColorPicker = 0x1000,
    };
};

// Those of `mask` that are switched on.
std::uint32_t EnabledOptions(const Params& params, std::uint32_t mask);

// What stands out against ink of this colour: white, or black from a middle grey on.
std::uint32_t ContrastColour(std::uint32_t inkColor);

// In proportion to the pressure, but a light touch does not vanish. Of two bounds that contradict each other
// the brush's own holds.
std::uint32_t PressureWidth(const Params& params, std::int32_t pressure);

// A segment is as wide all along as at its later end, where this is the pressure. A record may ask for one
// width whatever the pressure.
std::uint32_t SegmentWidth(const Params& params, std::int32_t pressure);

} // namespace zq::LM
