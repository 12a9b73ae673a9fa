// What a host hands its samples to: the library, or the least that draws the same.
#pragma once

#include "lumora/lumora.hpp"

#include <windows.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>

namespace lumora::latency {

inline constexpr std::int32_t FullPressure = 32767;
inline constexpr unsigned InkWidth = 6;
inline constexpr unsigned InkLifeMs = 500;

class InkSink {
public:
    InkSink() = default;
    virtual ~InkSink() = default;
    InkSink(const InkSink&) = delete;
    InkSink& operator=(const InkSink&) = delete;

    // Positions on the screen, oldest first; pressure 0 ends a stroke.
    virtual void Input(std::span<const LM_PenData> samples) = 0;
};

// Both throw lumora::Error.
std::unique_ptr<InkSink> MakeLibrarySink(const std::filesystem::path& library, BackEnd backEnd);
std::unique_ptr<InkSink> MakeBareSink();

} // namespace lumora::latency
