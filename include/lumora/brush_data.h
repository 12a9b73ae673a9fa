/* Makes brush-data messages, which change ink colour, brush size and ink life. For C++17; nothing to link. A
 * host in C writes the bytes itself: docs/brush-data.md has the layout and an example.
 *
 * Hand a message to LM_SetData_from_App, on the thread that called LM_Create, or send it to an instance that
 * listens for them, one send a message. What the library reads of a message and what it zeroes both lie
 * inside. */
#ifndef LUMORA_BRUSH_DATA_H
#define LUMORA_BRUSH_DATA_H

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace lumora {

using BrushDataMessage = std::vector<std::uint8_t>;

namespace detail {

/* Bytes are written one by one, so that the host's own byte order does not matter. */
inline void AppendLittleEndian(BrushDataMessage& message, std::uint32_t value, unsigned bytes)
{
    for (unsigned i = 0; i < bytes; ++i) {
        message.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
}

inline BrushDataMessage MakeMessage(std::u16string_view name, std::initializer_list<std::uint32_t> payload)
{
    constexpr unsigned CodeUnitSize = 2;
    constexpr unsigned WordSize = 4;
    BrushDataMessage message;
    for (const char16_t unit : name) {
        AppendLittleEndian(message, unit, CodeUnitSize);
    }
    AppendLittleEndian(message, 0, CodeUnitSize);
    AppendLittleEndian(message, static_cast<std::uint32_t>(WordSize * payload.size()), WordSize);
    for (const std::uint32_t word : payload) {
        AppendLittleEndian(message, word, WordSize);
    }
    return message;
}

} /* namespace detail */

/* Changes nothing. */
inline BrushDataMessage MakeNothing() { return detail::MakeMessage(u"Nothing", {}); }

/* Red ink is 0x000000FF, blue ink 0x00FF0000. Leave the highest byte 0: it is no alpha. */
inline BrushDataMessage MakeInkColor(std::uint32_t colour)
{
    return detail::MakeMessage(u"InkColor", {colour});
}

/* Widths in pixels: that of the lightest touch, and that of full pressure. */
inline BrushDataMessage MakeBrushSize(std::uint32_t smallest, std::uint32_t full)
{
    return detail::MakeMessage(u"BrushSize", {smallest, full});
}

/* How long ink stays. */
inline BrushDataMessage MakeInkDecayTime(std::uint32_t milliseconds)
{
    return detail::MakeMessage(u"InkDecayTime", {milliseconds});
}

/* Colour and both widths at once. */
inline BrushDataMessage MakeBrushParams(std::uint32_t colour, std::uint32_t smallest, std::uint32_t full)
{
    return detail::MakeMessage(u"BrushParams", {colour, smallest, full});
}

} /* namespace lumora */

#endif
