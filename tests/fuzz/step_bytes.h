// Any bytes as steps for the ink engine. Most numbers take one byte, so that the fuzzer finds its way to what
// follows; the edges of the engine's rules take two, and any other 32 bits five.
#pragma once

#include "engine/steps.h"
#include "fuzz/byte_reader.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace zq::LM::test {

class StepBytes {
public:
    StepBytes(const std::uint8_t* data, std::size_t size) : bytes(data, size) {}

    Steps Read()
    {
        Steps steps = {UseLogLevel{Number()}, MoveClockBy{Number()}};
        while (bytes.AreLeft() && steps.size() < MostSteps) {
            steps.push_back(OneStep());
        }
        return steps;
    }

private:
    // What a frame costs grows with the samples, and a walk is walked some thousand times a second.
    static constexpr std::size_t MostSteps = 48;

    std::uint32_t Number()
    {
        constexpr std::array<std::uint32_t, 16> Edges = {
            0x7FFFFFFF, 0x7FFFFFFE, 0x80000000, 0x80000001, 0x8000001F, 0xFFFFFFFF, 0xFFFFFFFE, 0xFFFF0000,
            100,        255,        1000,       32767,      32768,      0x00808080, 0x007F8080, 0xFFFE7900};
        const std::uint32_t form = bytes.Byte();
        if (form < 128) {
            return form;
        }
        if (form < 192) {
            return 0 - (form - 127);
        }
        return form < 224 ? Edges[form % Edges.size()] : bytes.Raw<std::uint32_t>();
    }

    std::int32_t Signed() { return static_cast<std::int32_t>(Number()); }

    AddSamples Batch(std::uint32_t count)
    {
        AddSamples batch;
        for (; count > 0 && bytes.AreLeft(); --count) {
            PenData sample{};
            sample.time = Number() + 1; // 0, a reset, is written as -1
            sample.x = Signed();
            sample.y = Signed();
            sample.pressure = Signed();
            sample.aux1 = Number();
            sample.aux4 = sample.aux6 = sample.aux7 = sample.aux8 = sample.aux1;
            batch.samples.push_back(sample);
        }
        return batch;
    }

    // One field of the record that was used last.
    UseRecord ChangedRecord(std::uint32_t field)
    {
        constexpr std::array Words = {&Params::inkDecayTime, &Params::inkColor,    &Params::minBrushSize,
                                      &Params::brushSize,    &Params::maxPressure, &Params::reserved0};
        constexpr std::array Flags = {&Params::line,        &Params::outline,   &Params::cursor,
                                      &Params::usePressure, &Params::useOffset, &Params::zebraMode,
                                      &Params::colorPicker, &Params::reserved31};
        if (field < Words.size()) {
            record.*Words[field] = Number();
        } else {
            record.*Flags[(field - Words.size()) % Flags.size()] = bytes.Byte();
        }
        return UseRecord{record};
    }

    double Factor(std::uint32_t kind)
    {
        using Range = std::numeric_limits<double>;
        constexpr std::array Factors = {
            1.0,  0.5, 1.5,  2.0,  0.1, 4.0, 1e10, Range::infinity(), Range::quiet_NaN(),
            -1.0, 0.0, 1e-9, 1e300};
        return kind < Factors.size() ? Factors[kind] : bytes.Raw<double>();
    }

    Step OneStep()
    {
        const std::uint8_t byte = bytes.Byte();
        const std::uint32_t kind = byte % 16;
        const std::uint32_t detail = byte / 16;
        switch (kind) {
        case 0:
        case 1:
            return DrawFrame{};
        case 2:
        case 3:
        case 4:
            return Batch(1 + detail % 8);
        case 5:
        case 6:
            return MoveClockBy{Number()};
        case 7:
        case 8:
            return ChangedRecord(detail);
        case 9:
            return UseRecord{record = bytes.Raw<Params>()};
        case 10:
            return Tick{};
        case 11:
            return UseScale{Factor(detail)};
        case 12:
            return detail < 8 ? Step(UseVectorOutline{detail % 2 == 0}) : Step(BindAgain{});
        case 13:
            return UseScreen{Number(), detail % 2 == 0};
        case 14:
            return detail < 8 ? Step(UseLogLevel{Number()}) : Step(AskOptions{Number()});
        default:
            return detail < 8 ? Step(ClearLive{}) : Step(PassNothing{});
        }
    }

    ByteReader bytes;
    Params record = DefaultParams;
};

} // namespace zq::LM::test
