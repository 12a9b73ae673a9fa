/* The record of parameters in C++'s own types: lumora/records.h says what each field means. */
#ifndef LUMORA_PARAMS_HPP
#define LUMORA_PARAMS_HPP

#include "lumora/error.hpp"
#include "lumora/records.h"

#include <chrono>
#include <cstdint>
#include <limits>

namespace lumora {

struct Colour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

inline bool operator==(const Colour& left, const Colour& right)
{
    return left.red == right.red && left.green == right.green && left.blue == right.blue;
}
inline bool operator!=(const Colour& left, const Colour& right) { return !(left == right); }

struct Params {
    std::chrono::milliseconds inkDecayTime{100};
    Colour inkColor{0x20, 0x20, 0x20};
    std::uint32_t minBrushSize = 1;
    std::uint32_t brushSize = 10;
    std::uint32_t maxPressure = 32767;
    bool line = true;
    bool outline = false;
    bool cursor = true;
    bool usePressure = true;
    bool useOffset = false;
    bool zebraMode = false;
    bool colorPicker = false;
    std::uint32_t reserved0 = 0; /* the host's own, as reserved31 */
    std::uint8_t reserved31 = 0;
};

/* The top byte of the colour, which means nothing, is left out; a flag is on when it is not 0. */
inline Params FromRecord(const LM_Params& record)
{
    Params params;
    params.inkDecayTime = std::chrono::milliseconds(record.inkDecayTime);
    params.inkColor = {static_cast<std::uint8_t>(record.inkColor),
                       static_cast<std::uint8_t>(record.inkColor >> 8),
                       static_cast<std::uint8_t>(record.inkColor >> 16)};
    params.minBrushSize = record.minBrushSize;
    params.brushSize = record.brushSize;
    params.maxPressure = record.maxPressure;
    params.line = record.line != 0;
    params.outline = record.outline != 0;
    params.cursor = record.cursor != 0;
    params.usePressure = record.usePressure != 0;
    params.useOffset = record.useOffset != 0;
    params.zebraMode = record.zebraMode != 0;
    params.colorPicker = record.colorPicker != 0;
    params.reserved0 = record.reserved0;
    params.reserved31 = record.reserved31;
    return params;
}

/* Throws Error when the ink life does not fit into the record's 32 bits. */
inline LM_Params ToRecord(const Params& params)
{
    const auto life = params.inkDecayTime.count();
    if (life < 0 || life > (std::numeric_limits<std::uint32_t>::max)()) {
        throw Error("Lumora: an ink life has 0 to 4294967295 milliseconds");
    }
    LM_Params record = {};
    record.reserved0 = params.reserved0;
    record.inkDecayTime = static_cast<std::uint32_t>(life);
    record.inkColor = static_cast<std::uint32_t>(params.inkColor.red) |
                      static_cast<std::uint32_t>(params.inkColor.green) << 8 |
                      static_cast<std::uint32_t>(params.inkColor.blue) << 16;
    record.minBrushSize = params.minBrushSize;
    record.brushSize = params.brushSize;
    record.maxPressure = params.maxPressure;
    record.line = params.line ? 1 : 0;
    record.outline = params.outline ? 1 : 0;
    record.cursor = params.cursor ? 1 : 0;
    record.usePressure = params.usePressure ? 1 : 0;
    record.useOffset = params.useOffset ? 1 : 0;
    record.zebraMode = params.zebraMode ? 1 : 0;
    record.colorPicker = params.colorPicker ? 1 : 0;
    record.reserved31 = params.reserved31;
    return record;
}

} /* namespace lumora */

#endif
