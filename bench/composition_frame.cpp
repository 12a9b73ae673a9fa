// What a frame of the DirectComposition back-end costs, through the delivered library on the stand-in for the
// system's composition engine, by how many segments live: lumora_composition_frame [FRAMES]
#include "library_file.h"

#include "support/composition/composition_stand_in.h"

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <vector>

namespace {

using zq::LM::test::CompositionStandIn;
using zq::LM::test::RecordedCall;

constexpr int UsualFrames = 31;

// In milliseconds.
struct FrameCost {
    double drawing = 0; // Direct2D's own calls
    double present = 0; // the stand-in's, which copies and reads a whole frame
    double rest = 0;    // engine and library, and the recording of the calls
};

double Milliseconds(LONGLONG ticks)
{
    LARGE_INTEGER frequency = {};
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks) * 1000 / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

template <typename Field> double MedianOf(const std::vector<FrameCost>& frames, Field field)
{
    std::vector<double> values;
    std::transform(frames.begin(), frames.end(), std::back_inserter(values),
                   [field](const FrameCost& frame) { return frame.*field; });
    return Median(std::move(values));
}

double PaintOnce(HWND window)
{
    LARGE_INTEGER begin = {};
    LARGE_INTEGER end = {};
    InvalidateRect(window, nullptr, FALSE);
    QueryPerformanceCounter(&begin);
    UpdateWindow(window);
    QueryPerformanceCounter(&end);
    return Milliseconds(end.QuadPart - begin.QuadPart);
}

FrameCost SplitFrame(HWND window, CompositionStandIn& composition)
{
    composition.Take();
    FrameCost cost;
    cost.rest = PaintOnce(window);
    for (const RecordedCall& call : composition.Calls()) {
        const double took = Milliseconds(call.leftAt - call.enteredAt);
        (call.method == "Present" ? cost.present : cost.drawing) += took;
        cost.rest -= took;
    }
    return cost;
}

// A zigzag of that many segments, all of them alive for longer than the measurement takes.
HWND CreateWithSegments(const lumora::Library& library, int segments)
{
    const HWND window = library.create();
    LM_Params params = {};
    library.getCopiedParams(&params);
    params.inkDecayTime = 3'600'000;
    library.setParams(&params);
    std::vector<LM_PenData> samples;
    for (int i = 0; i <= segments; ++i) {
        LM_PenData sample = {};
        sample.time = 1;
        sample.x = 20 + i % 40 * 5;
        sample.y = 20 + i % 2 * 10 + i / 40 * 8;
        sample.pressure = 20'000;
        samples.push_back(sample);
    }
    library.inputPenDataArray(samples.data(), samples.size());
    return window;
}

void Measure(const lumora::Library& library, CompositionStandIn& composition, int segments, int frames)
{
    const HWND window = CreateWithSegments(library, segments);
    PaintOnce(window); // the first one moves the samples
    std::vector<double> whole;
    std::vector<FrameCost> parts;
    for (int i = 0; i < frames; ++i) {
        composition.KeepCalls(false);
        whole.push_back(PaintOnce(window));
        composition.KeepCalls(true);
        parts.push_back(SplitFrame(window, composition));
    }
    std::cout << std::fixed << std::setprecision(2) << "| " << segments << " | " << Median(whole) << " | "
              << MedianOf(parts, &FrameCost::drawing) << " | " << MedianOf(parts, &FrameCost::present)
              << " | " << MedianOf(parts, &FrameCost::rest) << " |" << std::endl;
    library.destroy();
    MSG message = {};
    PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

} // namespace

int main(int count, char** arguments)
{
    const int frames = count > 1 ? static_cast<int>(std::strtol(arguments[1], nullptr, 10)) : UsualFrames;
    if (count > 2 || frames < 1) {
        std::cerr << "Usage: lumora_composition_frame [FRAMES]\n";
        return 2;
    }
    try {
        const lumora::Library library =
            lumora::replay::LoadLibraryFile(lumora::replay::LibraryBesideProgram());
        CompositionStandIn composition(library.module);
        composition.Show(false);
        std::cout << "| segments | frame, ms | Direct2D, ms | present, ms | the rest, recorded, ms |\n"
                     "|---|---|---|---|---|\n";
        for (const int segments : {1, 30, 300, 1000}) {
            Measure(library, composition, segments, frames);
        }
    } catch (const std::exception& failure) {
        std::cerr << "composition_frame: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
