// Steps at random, with a liking for what lies at the edges of the engine's rules.
#include "engine/steps.h"

#include <cstddef>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <random>

namespace zq::LM::test {

namespace {

constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();

// The standard's distributions differ from library to library; its generator does not.
class Dice {
public:
    explicit Dice(std::uint32_t seed) : generator(seed) {}

    std::uint32_t Any() { return static_cast<std::uint32_t>(generator()); }
    bool OneIn(std::uint32_t count) { return Any() % count == 0; }
    template <class Value> Value Of(std::initializer_list<Value> values)
    {
        return values.begin()[Any() % values.size()];
    }

    // Any 32 bits now and then, else one of these.
    std::uint32_t Number(std::initializer_list<std::uint32_t> values)
    {
        return OneIn(16) ? Any() : Of(values);
    }
    std::uint8_t Flag(std::initializer_list<std::uint8_t> values) { return Of(values); }

private:
    std::mt19937 generator;
};

Params AnyBytes(Dice& dice)
{
    unsigned char bytes[sizeof(Params)];
    for (unsigned char& byte : bytes) {
        byte = static_cast<unsigned char>(dice.Any());
    }
    Params params;
    std::memcpy(&params, bytes, sizeof(params));
    return params;
}

Params Record(Dice& dice)
{
    Params params = AnyBytes(dice);
    if (dice.OneIn(8)) {
        return params;
    }
    params.inkDecayTime = dice.Number({100, 100, 100, 20, 0, 1, 1000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF});
    params.inkColor = dice.Number({0x00202020, 0x00808080, 0x007F8080, 0x00FFFFFF, 0xFF000000});
    params.minBrushSize = dice.Number({0, 1, 4, 20, 0x80000000});
    params.brushSize = dice.Number(
        {0, 1, 2, 3, 4, 5, 9, 10, 10, 10, 33, 0x7FFFFFFE, 0x7FFFFFFF, 0x80000003, 0x8000000A, 0xFFFFFFFF});
    params.maxPressure = dice.Number({32767, 32767, 100, 1, 0, 0xFFFFFFFE});
    params.line = dice.Flag({1, 1, 0, 0, 2});
    params.outline = dice.Flag({0, 1, 1, 2});
    params.cursor = dice.Flag({0, 1, 1, 255});
    params.usePressure = dice.Flag({0, 1, 2});
    params.useOffset = dice.Flag({0, 0, 1, 2});
    params.zebraMode = dice.Flag({0, 1, 2});
    params.colorPicker = dice.Flag({0, 0, 0, 0, 0, 1, 1, 255});
    if (dice.OneIn(12)) {
        params.line = params.outline = params.cursor = params.colorPicker = 0;
    }
    return params;
}

std::int32_t Coordinate(Dice& dice)
{
    if (dice.OneIn(40)) {
        return 0; // a reset marker
    }
    return dice.OneIn(12)
               ? dice.Of({Lowest, Lowest + 31, Highest, Highest - 3, static_cast<std::int32_t>(dice.Any())})
               : dice.Of({-500, -1, 1, 7, 10, 32, 63, 64, 65, 101, 300});
}

PenData Sample(Dice& dice)
{
    return {.time = dice.OneIn(40) ? 0 : dice.Any() | 1,
            .aux1 = dice.Any(),
            .x = Coordinate(dice),
            .y = Coordinate(dice),
            .aux4 = dice.Any(),
            .pressure = dice.OneIn(12) ? dice.Of({Lowest, Highest, static_cast<std::int32_t>(dice.Any())})
                                       : dice.Of({-1, 0, 0, 1, 1, 4, 5, 50, 100, 16384, 32767, 32767, 40000}),
            .aux6 = dice.Any(),
            .aux7 = dice.Any(),
            .aux8 = dice.Any()};
}

AddSamples Batch(Dice& dice)
{
    AddSamples batch;
    for (std::uint32_t left = dice.Any() % 5; left > 0; --left) {
        batch.samples.push_back(Sample(dice));
    }
    return batch;
}

std::uint32_t Milliseconds(Dice& dice)
{
    if (dice.OneIn(20)) {
        return dice.Of({0x7FFFFFFFU, 0x80000000U, 0xFFFFFF00U, dice.Any()});
    }
    const std::uint32_t some = dice.Of({1U, 1U, 2U, 5U, 9U, 10U, 11U, 20U, 50U, 99U, 100U, 101U, 1000U});
    return dice.OneIn(5) ? 0 - some : some;
}

double Factor(Dice& dice)
{
    using Range = std::numeric_limits<double>;
    return dice.OneIn(3) ? dice.Of({0.0, -1.0, -Range::infinity(), Range::quiet_NaN(), Range::infinity(),
                                    Range::denorm_min(), 4.0, 1e10})
                         : dice.Of({1.0, 1.0, 0.5, 1.5, 2.0, 0.1});
}

Step OneStep(Dice& dice)
{
    const std::uint32_t die = dice.Any() % 100;
    if (die < 28) {
        return DrawFrame{};
    }
    if (die < 52) {
        return Batch(dice);
    }
    if (die < 72) {
        return MoveClockBy{Milliseconds(dice)};
    }
    if (die < 82) {
        return UseRecord{Record(dice)};
    }
    if (die < 88) {
        return Tick{};
    }
    switch (die) {
    case 88:
    case 89:
        return UseScale{Factor(dice)};
    case 90:
    case 91:
        return UseVectorOutline{dice.OneIn(2)};
    case 92:
    case 93:
        return UseScreen{dice.Any(), dice.OneIn(2)};
    case 94:
    case 95:
        return ClearLive{};
    case 96:
        return AskOptions{dice.Any()};
    case 97:
        return dice.OneIn(2) ? Step(BindAgain{}) : Step(PassNothing{});
    default:
        return UseLogLevel{dice.Number({0, 1, 2, 3, 3, 254, 255, 255, 256})};
    }
}

} // namespace

Steps RandomSteps(std::uint32_t seed, std::size_t count)
{
    Dice dice(seed);
    Steps steps = {UseLogLevel{dice.Of({2U, 3U, 255U})},
                   MoveClockBy{dice.Of({0U, 0U, dice.Any(), 0xFFFE7900U})}};
    while (steps.size() < count) {
        steps.push_back(OneStep(dice));
    }
    return steps;
}

} // namespace zq::LM::test
