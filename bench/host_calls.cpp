// What the C++ layer adds to the calls of the C interface, in the same run: lumora_host_calls [ROUNDS]
#include "lumora/lumora.hpp"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

namespace {

constexpr int UsualRounds = 200;
constexpr int CallsInARound = 1000;

// The library's calls are fenced off from the optimiser by their addresses, which are found at run time.
template <typename Call> double NanosecondsOfACall(Call call)
{
    LARGE_INTEGER frequency = {};
    LARGE_INTEGER begin = {};
    LARGE_INTEGER end = {};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&begin);
    for (int i = 0; i < CallsInARound; ++i) {
        call();
    }
    QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - begin.QuadPart) * 1e9 /
           static_cast<double>(frequency.QuadPart) / CallsInARound;
}

// The fastest round of each, the two taking turns, so that what else the machine does meets both alike.
template <typename Bare, typename Layer> void Compare(const char* name, int rounds, Bare bare, Layer layer)
{
    double bareCost = (std::numeric_limits<double>::max)();
    double layerCost = bareCost;
    for (int round = 0; round < rounds; ++round) {
        bareCost = (std::min)(bareCost, NanosecondsOfACall(bare));
        layerCost = (std::min)(layerCost, NanosecondsOfACall(layer));
    }
    std::printf("%-24s %10.1f ns %10.1f ns %8.2f\n", name, layerCost, bareCost, layerCost / bareCost);
}

// Samples, the last of which drops them again, so that none of them adds up.
std::vector<LM_PenData> Batch(std::size_t count)
{
    std::vector<LM_PenData> samples(count, lumora::Overlay::SampleAt({300, 200}, 9000, {0, 0}));
    samples.back().time = 0;
    return samples;
}

} // namespace

int main(int count, char** arguments)
{
    const int rounds = count > 1 ? std::atoi(arguments[1]) : UsualRounds;
    const lumora::Library library = lumora::Library::Load();
    lumora::OverlayOptions options;
    options.backEnd = lumora::BackEnd::GDI;
    lumora::Overlay overlay(options, library);

    std::printf("%-24s %13s %13s %8s\n", "call", "layer", "C", "ratio");
    Compare(
        "window", rounds, [&] { return library.getWindowHandle(); }, [&] { return overlay.Window(); });
    for (const std::size_t size : {1U, 10U, 100U}) {
        const std::vector<LM_PenData> samples = Batch(size);
        const std::string name = "input of " + std::to_string(size);
        Compare(
            name.c_str(), rounds, [&] { library.inputPenDataArray(samples.data(), samples.size()); },
            [&] { overlay.Input(samples); });
    }
}
