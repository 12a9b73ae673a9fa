// What a pen's report is made of, by the numbers of the USB Implementers Forum's "HID Usage Tables".
#pragma once

#include <cstdint>

namespace lumora_pen::usages {

inline constexpr std::uint16_t DesktopPage = 0x01;
inline constexpr std::uint16_t MouseDevice = 0x02;
inline constexpr std::uint16_t X = 0x30;
inline constexpr std::uint16_t Y = 0x31;

inline constexpr std::uint16_t DigitizerPage = 0x0D;
inline constexpr std::uint16_t PenDevice = 0x02;
inline constexpr std::uint16_t TipPressure = 0x30;
inline constexpr std::uint16_t InRange = 0x32;
inline constexpr std::uint16_t Invert = 0x3C; // the pen is held with its eraser down
inline constexpr std::uint16_t TipSwitch = 0x42;

} // namespace lumora_pen::usages
