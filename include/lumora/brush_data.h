/* Makes brush-data messages, which change ink colour, brush size and ink life. For C++17; nothing to link.
 *
 * Hand a message to LM_SetData_from_App, or send it to an instance that listens for them, one send a message.
 * A message is as long as anything that the library reads of it or zeroes in it. docs/brush-data.md has the
 * layout. */
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

/* The ink colour, 0x00BBGGRR: red in the low byte. */
inline BrushDataMessage MakeInkColor(std::uint32_t colour)
{
    return detail::MakeMessage(u"InkColor", {colour});
}

/* The smallest width that pressure may give a stroke, and the full width, in pixels. */
inline BrushDataMessage MakeBrushSize(std::uint32_t smallest, std::uint32_t full)
{
    return detail::MakeMessage(u"BrushSize", {smallest, full});
}

/* The ink life in milliseconds. */
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
