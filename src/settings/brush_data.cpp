// The brush-data message: finding its kind, applying it and wiping it.
#include "settings/brush_data.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zq::LM {

namespace {

constexpr std::size_t CodeUnitSize = 2;
constexpr std::size_t SizeFieldSize = 4;

constexpr const char16_t* Names[] = {u"Nothing", u"InkColor", u"BrushSize", u"InkDecayTime", u"BrushParams"};

char16_t CodeUnitAt(const std::uint8_t* message, std::size_t index)
{
    const std::uint8_t* bytes = message + CodeUnitSize * index;
    return static_cast<char16_t>(bytes[0] | bytes[1] << 8);
}

std::uint32_t WordAt(const std::uint8_t* bytes)
{
    std::uint32_t word = 0;
    for (unsigned i = 0; i < sizeof(word); ++i) {
        word |= static_cast<std::uint32_t>(bytes[i]) << (8 * i);
    }
    return word;
}

// Past the name and its terminating 0.
const std::uint8_t* SizeField(const std::uint8_t* message, BrushDataKind kind)
{
    return message + CodeUnitSize * (BrushDataNameLength(static_cast<unsigned>(kind)) + std::size_t{1});
}

void Apply(Params& params, BrushDataKind kind, const std::uint8_t* payload)
{
    switch (kind) {
    case BrushDataKind::Nothing:
        return;
    case BrushDataKind::InkColor:
        params.inkColor = WordAt(payload);
        break;
    case BrushDataKind::BrushSize:
        params.minBrushSize = WordAt(payload);
        params.brushSize = WordAt(payload + 4);
        break;
    case BrushDataKind::InkDecayTime:
        params.inkDecayTime = WordAt(payload);
        break;
    case BrushDataKind::BrushParams:
        params.inkColor = WordAt(payload);
        params.minBrushSize = WordAt(payload + 4);
        params.brushSize = WordAt(payload + 8);
        break;
    }
    params.colorPicker = 0; // every message that is applied ends colour picking
}

// Reads at most BrushDataReach bytes and wipes at most `writable`.
BrushDataKind Decode(Params& params, std::uint8_t* message, std::uint64_t writable)
{
    const BrushDataKind kind = FindBrushDataKind(message);
    if (kind == BrushDataKind::Nothing) {
        return kind;
    }
    const std::uint8_t* sizeField = SizeField(message, kind);
    Apply(params, kind, sizeField + SizeFieldSize);
    const std::uint64_t wiped = std::min(BrushDataWipeLength(kind, WordAt(sizeField)), writable);
    std::fill_n(message, wiped, std::uint8_t{0});
    return kind;
}

} // namespace

bool IsBrushDataName(const std::uint8_t* message, const char16_t* name)
{
    constexpr std::uint8_t MostCodeUnits = 100;
    for (std::uint8_t i = 0; i < MostCodeUnits; ++i) {
        if (CodeUnitAt(message, i) != name[i]) {
            return false;
        }
        if (name[i] == 0) {
            return true;
        }
    }
    return false;
}

BrushDataKind FindBrushDataKind(const std::uint8_t* message)
{
    const auto* found = std::find_if(std::begin(Names), std::end(Names), [message](const char16_t* name) {
        return IsBrushDataName(message, name);
    });
    return found != std::end(Names) ? static_cast<BrushDataKind>(found - std::begin(Names))
                                    : BrushDataKind::Nothing;
}

std::uint16_t CountCodeUnits(const char16_t* name)
{
    constexpr std::uint32_t Limit = 0x10000;
    for (std::uint32_t count = 0; count < Limit; ++count) {
        if (name[count] == 0) {
            return static_cast<std::uint16_t>(count);
        }
    }
    return 0;
}

std::uint16_t BrushDataNameLength(unsigned index)
{
    return index < std::size(Names) ? CountCodeUnits(Names[index]) : std::uint16_t{0};
}

std::uint64_t BrushDataWipeLength(BrushDataKind kind, std::uint32_t payloadSize)
{
    return std::uint64_t{payloadSize} + BrushDataNameLength(static_cast<unsigned>(kind)) + 1 + SizeFieldSize;
}

BrushDataKind DecodeBrushData(Params& params, std::uint8_t* message)
{
    return Decode(params, message, std::numeric_limits<std::uint64_t>::max());
}

BrushDataKind DecodeReceivedBrushData(Params& params, std::span<const std::uint8_t> received)
{
    std::array<std::uint8_t, BrushDataReach> copy{};
    std::copy_n(received.begin(), std::min(received.size(), copy.size()), copy.begin());
    return Decode(params, copy.data(), copy.size());
}

} // namespace zq::LM
