// What the C++ layer adds to the calls of the C interface, in the same run: lumora_host_calls [ROUNDS]
#include "lumora/lumora.hpp"

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <iomanip>
#include <iostream>
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
template <typename Bare, typename Layer>
void Compare(const std::string& name, int rounds, Bare bare, Layer layer)
{
    double bareCost = (std::numeric_limits<double>::max)();
    double layerCost = bareCost;
    for (int round = 0; round < rounds; ++round) {
        bareCost = (std::min)(bareCost, NanosecondsOfACall(bare));
        layerCost = (std::min)(layerCost, NanosecondsOfACall(layer));
    }
    std::cout << std::fixed << "| " << name << " | " << std::setprecision(1) << layerCost << " | " << bareCost
              << " | ns | " << std::setprecision(2) << layerCost / bareCost << " |\n";
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
    const int rounds = count > 1 ? static_cast<int>(std::strtol(arguments[1], nullptr, 10)) : UsualRounds;
    if (count > 2 || rounds < 1) {
        std::cerr << "Usage: lumora_host_calls [ROUNDS]\n";
        return 2;
    }
    try {
        const lumora::Library library = lumora::Library::Load();
        lumora::OverlayOptions options;
        options.backEnd = lumora::BackEnd::GDI;
        lumora::Overlay overlay(options, library);

        std::cout << "| pair | class | C function | unit | ratio |\n|---|---|---|---|---|\n";
        Compare(
            "Overlay::Window", rounds, [&] { return library.getWindowHandle(); },
            [&] { return overlay.Window(); });
        for (const std::size_t size : {1U, 10U, 100U}) {
            const std::vector<LM_PenData> samples = Batch(size);
            Compare(
                "Overlay::Input/" + std::to_string(size), rounds,
                [&] { library.inputPenDataArray(samples.data(), samples.size()); },
                [&] { overlay.Input(samples); });
        }
    } catch (const std::exception& failure) {
        std::cerr << "host_calls: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
