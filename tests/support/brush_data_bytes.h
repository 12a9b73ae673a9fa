// Brush-data messages written out byte by byte, whatever the library's own encoder makes of them.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace zq::LM::test {

using Bytes = std::vector<std::uint8_t>;

inline Bytes NameBytes(std::string_view name)
{
    Bytes bytes;
    for (const char character : name) {
        bytes.push_back(static_cast<std::uint8_t>(character));
        bytes.push_back(0);
    }
    bytes.insert(bytes.end(), {0, 0});
    return bytes;
}

inline Bytes Message(std::string_view name, std::uint32_t size, std::initializer_list<std::uint8_t> payload)
{
    Bytes bytes = NameBytes(name);
    for (unsigned shift = 0; shift < 32; shift += 8) {
        bytes.push_back(static_cast<std::uint8_t>(size >> shift));
    }
    bytes.insert(bytes.end(), payload);
    return bytes;
}

// One of each kind, with values that no default has.
inline Bytes InkColorMessage() { return Message("InkColor", 4, {0x11, 0x22, 0x33, 0x00}); }
inline Bytes BrushSizeMessage() { return Message("BrushSize", 8, {1, 0, 0, 0, 30, 0, 0, 0}); }
inline Bytes InkDecayTimeMessage() { return Message("InkDecayTime", 4, {0xDC, 0x05, 0x00, 0x00}); }
inline Bytes BrushParamsMessage()
{
    return Message("BrushParams", 12, {0x44, 0x55, 0x66, 0x00, 7, 0, 0, 0, 0x2C, 0x01, 0, 0});
}

} // namespace zq::LM::test
