// Decoding a brush-data message beside one comparison of its name and a copy of its payload.
#include "settings/brush_data.h"
#include "support/brush_data_bytes.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace zq::LM::bench {
namespace {

void DecodedByTheLibrary(benchmark::State& state)
{
    const std::vector<std::uint8_t> message = test::BrushParamsMessage();
    Params params = DefaultParams;
    for ([[maybe_unused]] auto iteration : state) {
        benchmark::DoNotOptimize(DecodeReceivedBrushData(params, message));
        benchmark::ClobberMemory();
    }
}

// The last kind that the library asks for; the copy is wiped, too.
void DecodedBare(benchmark::State& state)
{
    const std::vector<std::uint8_t> message = test::BrushParamsMessage();
    const std::vector<std::uint8_t> name = test::NameBytes("BrushParams");
    Params params = DefaultParams;
    for ([[maybe_unused]] auto iteration : state) {
        std::array<std::uint8_t, BrushDataReach> copy{};
        std::copy_n(message.begin(), std::min(message.size(), copy.size()), copy.begin());
        if (std::equal(name.begin(), name.end(), copy.begin())) {
            const std::uint8_t* payload = copy.data() + name.size() + 4;
            std::memcpy(&params.inkColor, payload, 4);
            std::memcpy(&params.minBrushSize, payload + 4, 8);
            params.colorPicker = 0;
            copy.fill(0);
        }
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
}

BENCHMARK(DecodedByTheLibrary)->Name("brush data/library");
BENCHMARK(DecodedBare)->Name("brush data/bare");

} // namespace
} // namespace zq::LM::bench
