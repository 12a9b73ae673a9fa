// Any numbers as the reports and the descriptor of a pen: what is made of them lies on its display.
#include "input/pen_report.h"

#include "fuzz/byte_reader.h"
#include "fuzz/fuzz_target.h"

namespace lumora_pen {

namespace {

using zq::LM::test::ByteReader;

struct Device {
    unsigned bitSize = 0;
    PenRanges ranges;
    PenPlace place;
};

LogicalRange ReadRange(ByteReader& numbers, unsigned bitSize)
{
    const std::int32_t least = numbers.Raw<std::int32_t>();
    return RangeOf(least, numbers.Raw<std::int32_t>(), bitSize);
}

Device ReadDevice(ByteReader& numbers)
{
    Device device;
    device.bitSize = numbers.Byte() % 40; // a descriptor may claim more than a word
    device.ranges = {ReadRange(numbers, device.bitSize), ReadRange(numbers, device.bitSize),
                     ReadRange(numbers, device.bitSize)};
    device.place.display = numbers.Raw<PixelRectangle>();
    device.place.turn = static_cast<Turn>(numbers.Byte() % 4);
    return device;
}

PenReport ReadReport(ByteReader& numbers, const Device& device)
{
    const std::uint8_t flags = numbers.Byte();
    const auto value = [&](unsigned flag, const LogicalRange& range) {
        return (flags & flag) != 0
                   ? std::optional(ValueOf(numbers.Raw<std::uint32_t>(), device.bitSize, range))
                   : std::nullopt;
    };
    PenReport report;
    report.x = value(1, device.ranges.x);
    report.y = value(2, device.ranges.y);
    report.pressure = value(4, device.ranges.pressure);
    report.isInRange = (flags & 8) != 0;
    report.touches = (flags & 16) != 0;
    report.isInverted = (flags & 32) != 0;
    return report;
}

void RequireOnDisplay(const InputSample& sample, const PixelRectangle& display)
{
    Require(sample.x >= display.left && sample.x <= double{1} * display.right - 1, "x is beside the display");
    Require(sample.y >= display.top && sample.y <= double{1} * display.bottom - 1, "y is beside the display");
    Require(sample.pressure >= 0 && sample.pressure <= FullPressure, "the pressure is out of range");
}

} // namespace

} // namespace lumora_pen

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lumora_pen;
    zq::LM::test::ByteReader numbers(data, size);
    const Device device = ReadDevice(numbers);
    PenReports reports;
    std::uint32_t time = 0;
    while (numbers.AreLeft()) {
        const PenReport report = ReadReport(numbers, device);
        const bool wasInRange = reports.IsInRange();
        const auto sample = reports.Take(report, device.ranges, device.place, ++time);
        const bool writes = report.touches && !report.isInverted;
        if (sample) {
            RequireOnDisplay(*sample, device.place.display);
            Require(sample->time == time, "another time");
            Require((sample->pressure > 0) == writes, "a touch is none, or the other way round");
        }
        if (!report.isInRange && !report.touches) {
            Require(sample.has_value() == wasInRange, "a stroke does not end where the pen leaves");
            Require(!reports.IsInRange(), "a pen that has left is in range");
        }
    }
    return 0;
}
